// Who hears that a profile could not be read or written.
#pragma once

namespace tessary
{

enum class ProfileProblem {
    Unread,  ///< it is there and can not be read, or is too long
    Unsaved, ///< what was to be written is not on the disk
};

/// Who hears of it; null: nobody. The common data enter themselves here, to show it on the error line.
using ProfileSink = void (*)(ProfileProblem);
extern ProfileSink ProfileTrouble;

} // namespace tessary
