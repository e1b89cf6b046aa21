#pragma once

#include <QString>

namespace Zelkor::Vx::UI::Kit {

/// What a style sheet is set on. The sheet of a widget may consist of declarations only, without selector and braces.
enum class StyleSheetScope { APPLICATION, WIDGET };

} // namespace Zelkor::Vx::UI::Kit

/// Asks Qt's own parser about a style sheet.
namespace Zelkor::Vx::UI::Kit::QtStyleSheetParser {

/// Returns whether Qt accepts a style sheet, even if it ignores some of the declarations.
///
/// Makes Qt parse the sheet for a hidden widget without polishing it, so that no property is set and no image is
/// loaded. Suppresses the warnings of Qt about the sheet. GUI thread only.
bool IsAccepted(const QString& sheet, StyleSheetScope scope);

/// Returns the position of the first selector or declaration that Qt rejects in a sheet that it does not accept.
int FindRefused(const QString& sheet, StyleSheetScope scope);

} // namespace Zelkor::Vx::UI::Kit::QtStyleSheetParser
