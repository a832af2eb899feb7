// One program for each profile: two would write over each other's window places and flags.
#pragma once

namespace tessary
{

/// Holds the profile until EndInstance(), or until the process ends, however it does.
/// @return false when another process of this user holds it
bool BeOnlyInstance(const char* profile);

void EndInstance();

} // namespace tessary
