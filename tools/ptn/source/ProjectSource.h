// The sources that all screens share.
#pragma once

#include "tools/ptn/model/Attributes.h"
#include "tools/ptn/model/CodeTable.h"
#include "tools/ptn/model/Groups.h"
#include "tools/ptn/model/OwnSection.h"
#include "tools/ptn/model/Profile.h"
#include "tools/ptn/model/Resources.h"
#include "tools/ptn/model/Styles.h"
#include "tools/ptn/model/Tables.h"

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>

namespace ptn
{

struct ProjectSource {
    std::string program = "panel"; ///< the profile is called after it
    CodeTable codes;
    Resources resources;
    Styles styles;
    Groups groups;
    ProfileSource profile;
    MessageTable messages;
    LimitTable limits;
    FlagTable flags;
    std::map<std::string, std::unique_ptr<OwnSection>> own; ///< of the application, by name of the section
    std::optional<std::set<std::string>> registry; ///< patterns that the program knows; none when not told
    FileMap bitmaps;                               ///< by EUC-JP name

    /// What the values of attributes may name; refers to this.
    Vocabulary vocabulary() const { return {resources, messages.names()}; }
};

/// The texts in quotes of a C++ source file, or of all those of a folder, in EUC-JP: the patterns that a
/// program knows by name are among them. None, with an error reported, when it can not be read.
std::optional<std::set<std::string>> QuotedTexts(const std::filesystem::path& path, const Place& place,
                                                 Diagnostics& diagnostics);

} // namespace ptn
