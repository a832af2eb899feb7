// The profile file, panel.ini.
#pragma once

#include "tools/ptn/model/Resources.h"
#include "tools/ptn/yaml/Source.h"

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace ptn
{

class ProfileSource
{
  public:
    /// Reads the section "profile": sections of keys. A value is a text or a number; a list gives the fields
    /// of one key. "@DIR@/" at the start of a value stands for the folder that the profile lies in.
    void read(const Source& section, Diagnostics& diagnostics);

    /// Puts in a section of the sources that is a key of the profile by another name, since it decides what
    /// the screens do: "edition" or "scale".
    void readLine(const std::string& name, const Source& section, Diagnostics& diagnostics);

    /// Reports an edition or a scale that this framework does not know, wherever the profile has it from.
    void checkLines(Diagnostics& diagnostics) const;

    /// The project's edition; 1 where the profile names none, or none that there is.
    int edition() const;

    /// Whether the panel is scaled to its display. @param place  receives where the profile says so
    bool scaled(Place* place = nullptr) const;

    /// Checks that the patterns which the program opens by itself exist.
    /// @param patterns  names of the project's patterns in EUC-JP
    void checkPatterns(const std::set<std::string>& patterns, Diagnostics& diagnostics) const;

    /// The file's bytes.
    /// @param folder   absolute path of the folder that the profile lies in
    /// @param project  name in it of the project directory, the default of key "PROJECT"
    /// @param before   the profile of the build before, or empty: its remembered window positions are kept
    std::string bytes(const std::string& folder, const std::string& project, const Resources& resources,
                      const std::string& before, Diagnostics& diagnostics) const;

    /// Takes a profile apart.
    /// @param folder   absolute path of the folder that it lies in
    /// @param project  name of the project directory in it
    /// @param file     how messages name the profile
    /// @return the X names of fonts by key number; those that can not stand in "fonts" go back with
    /// `keepFont`
    std::map<int, std::string> load(const std::string& bytes, const std::string& folder,
                                    const std::string& project, const std::string& file);
    /// Keeps a font name as a plain key.
    void keepFont(int number, const std::string& name);
    /// A section that is a key by another name, empty where the profile has no such line, and "profile".
    std::string lineYaml(const std::string& name) const;
    std::string yaml() const;

    /// The value of a key in EUC-JP, empty when it is missing, and where it stands.
    std::string value(const std::string& section, const std::string& name, Place* place = nullptr) const;

    struct Key {
        std::string section;
        std::string name;
        std::string value; ///< EUC-JP, its fields parted by commas
        Place place;
    };
    /// All keys, in the order of the sources.
    const std::vector<Key>& keys() const { return keys_; }

  private:
    void readKey(const std::string& section, const Entry& entry, Diagnostics& diagnostics);
    const Key* find(const std::string& section, const std::string& name) const;
    const Key* lineKey(const std::string& name) const;
    void checkEdition(Diagnostics& diagnostics) const;
    void checkScale(Diagnostics& diagnostics) const;

    std::vector<std::string> sections_;
    std::vector<Key> keys_;
    std::map<std::string, Key> lines_; ///< those that stand on their own, by the names of their sections
};

} // namespace ptn
