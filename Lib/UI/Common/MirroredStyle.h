#pragma once

namespace Zelkor::Vx::UI::Common {

/// Makes style sheet rules with the selector `[layoutDirection="..."]` follow the layout direction at run time. Qt
/// matches properties only while it polishes a widget, which a change of direction does not cause.
///
/// Called from the constructors of the widgets that such rules mirror. After the first call, every widget of the
/// application is polished again when its layout direction changes, if a style sheet that applies to it contains such a
/// selector. Polishing resets properties that the style sheet sets. GUI thread only.
void FollowLayoutDirection();

} // namespace Zelkor::Vx::UI::Common
