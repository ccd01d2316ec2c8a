#pragma once

/// Has screen readers pass over what only holds windows or pages: the toolkit names it a layered pane, which is read
/// aloud each time the focus comes from elsewhere.
namespace QuietPanes {

/// To be called once the application exists; holds for every area of windows and every stack of pages.
void install();

} // namespace QuietPanes
