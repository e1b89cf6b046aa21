#pragma once

namespace Zelkor::Vx::UI::Common {

/// Makes style-sheet rules with the selector `[layoutDirection="..."]` follow the layout direction at run time. Qt
/// matches properties only when it polishes a widget, which no change of direction makes it do.
///
/// Called from the constructors of the widgets that such rules mirror. From the first call on, every widget of the
/// application, plain ones of Qt included, is polished again when its direction changes, where a style sheet that
/// applies to it contains such a selector. As with any polishing, properties that a sheet sets get the sheet's value
/// again. GUI thread only.
void FollowLayoutDirection();

} // namespace Zelkor::Vx::UI::Common
