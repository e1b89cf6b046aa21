#pragma once

#include <QString>

namespace Zelkor::Vx::UI::Kit {

/// What a style sheet is set on. The sheet of a widget may consist of declarations only, without selector and braces.
enum class StyleSheetScope { APPLICATION, WIDGET };

} // namespace Zelkor::Vx::UI::Kit

/// Asks Qt's own parser about a style sheet.
namespace Zelkor::Vx::UI::Kit::QtStyleSheetParser {

/// Whether Qt accepts the sheet when it is set on the application or on a widget. A declaration that Qt drops silently
/// from a sheet that it accepts does not count.
///
/// Lets Qt parse the sheet for a hidden widget, without polishing it: no property is set and no image is loaded.
/// Warnings of Qt about the sheet are not passed on. GUI thread.
bool IsAccepted(const QString& sheet, StyleSheetScope scope);

/// The position of a part that Qt refuses, for a sheet that is not accepted: of the selector or the declaration, which
/// are the steps in which Qt accepts more of a sheet or less.
int FindRefused(const QString& sheet, StyleSheetScope scope);

} // namespace Zelkor::Vx::UI::Kit::QtStyleSheetParser
