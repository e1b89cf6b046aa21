#pragma once

#include <QStringList>

class QLocale;
class QTime;

namespace Zelkor::Vx::UI::Kit {

/// The first of those `formats`, written as for QTime::toString, that lose least of `time` on its way to a text and
/// back. Formats that show no part of a time do not count; empty when no other is there.
QString ChooseTimeFormat(const QStringList& formats, const QTime& time);

/// The first of each kind among `formats` that loses alike, whatever the time. ChooseTimeFormat() chooses the same from
/// these, in a time that does not grow with a list of many variants of few formats.
QStringList DistinctTimeFormats(const QStringList& formats);

/// `time` in the format chosen from `formats`, or as "hh:mm:ss" when there is none.
QString TimeText(const QTime& time, const QStringList& formats, const QLocale& locale);

} // namespace Zelkor::Vx::UI::Kit
