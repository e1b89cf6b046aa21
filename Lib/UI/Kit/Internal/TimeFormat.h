#pragma once

#include <QStringList>

class QLocale;
class QTime;

namespace Zelkor::Vx::UI::Kit {

/// Returns the format that loses least precision when `time` is converted to text and back; the first one of several.
/// Formats are those of QTime::toString(). Ignores formats that show no part of a time; returns an empty string if no
/// other is in the list.
QString ChooseTimeFormat(const QStringList& formats, const QTime& time);

/// Returns the first format of each group that loses the same precision for every time. ChooseTimeFormat() chooses the
/// same format from this list, which is much shorter than a list of many variants.
QStringList DistinctTimeFormats(const QStringList& formats);

/// Returns `time` in the format that ChooseTimeFormat() chooses, or in "hh:mm:ss" if it chooses none.
QString TimeText(const QTime& time, const QStringList& formats, const QLocale& locale);

} // namespace Zelkor::Vx::UI::Kit
