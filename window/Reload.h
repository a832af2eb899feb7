// Patterns that have changed on disk while windows show them.
#pragma once

#include <functional>

namespace tessary
{

/// Has the windows that are open show the patterns that have changed: the same window takes the new pattern
/// and is painted at once, so that nothing else is seen in between. It keeps its place, unless the new header
/// names another, and its children; a field in edit is left without storing, and its init hook runs again. A
/// window whose ready-made class has changed is opened anew. A pattern that is gone stays as it was. The code
/// table, the list of patterns and the drawing resources have been loaded before, with what may be another
/// scale. To be called in a tick, with no other handler on the stack.
/// @param changed  told the name of a window's pattern, in EUC-JP
void ReloadPtrnWnds(const std::function<bool(const char* name)>& changed);

/// From now on the windows of a scaled panel follow a display whose size changes.
void FollowDisplay();

} // namespace tessary
