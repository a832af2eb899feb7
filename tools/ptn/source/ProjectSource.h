// The sources that all screens share.
#pragma once

#include "tools/ptn/model/Attributes.h"
#include "tools/ptn/model/CodeTable.h"
#include "tools/ptn/model/Groups.h"
#include "tools/ptn/model/Links.h"
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

/// The patterns that a program knows, as far as its C++ sources tell.
class KnownPatterns
{
  public:
    /// Takes what C++ source names: texts in quotes, and constants such as screen::Main.
    void addSource(const std::string& source);

    /// 1 when a pattern of that name, in EUC-JP, is among them, else 0.
    std::size_t count(const std::string& name) const;

  private:
    std::set<std::string> texts_; ///< EUC-JP
    std::set<std::string> constants_;
};

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
    LinkTable links;
    std::map<std::string, std::unique_ptr<OwnSection>> own; ///< of the application, by name of the section
    std::optional<KnownPatterns> registry;                  ///< none when not told
    FileMap bitmaps;                                        ///< by EUC-JP name

    /// What the values of attributes may name; refers to this.
    Vocabulary vocabulary() const { return {resources, messages.names()}; }
};

/// What a C++ source file, or all those of a folder, name, except in comments. None, with an error reported,
/// when it can not be read.
std::optional<KnownPatterns> QuotedTexts(const std::filesystem::path& path, const Place& place,
                                         Diagnostics& diagnostics);

} // namespace ptn
