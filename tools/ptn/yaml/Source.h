// Reading the YAML sources: nodes that know their place, and typed values with their complaints.
#pragma once

#include "tools/ptn/common/Diagnostics.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>
#include <yaml-cpp/yaml.h>

namespace ptn
{

class Source;

/// What "$name" stands for within a group of items.
using Arguments = std::map<std::string, Source>;

/// A node and the file it stands in.
class Source
{
  public:
    Source() = default;
    Source(std::shared_ptr<const std::string> file, const YAML::Node& node,
           std::shared_ptr<const Arguments> arguments = nullptr,
           std::shared_ptr<const std::string> use = nullptr);
    Source(const Source& other) = default;
    // A node's own assignment would change the tree that it belongs to.
    Source& operator=(const Source& other);

    const YAML::Node& node() const { return node_; }
    Place place() const;
    Source child(const YAML::Node& node) const { return {file_, node, arguments_, use_}; }
    /// The value of a key. An empty one has no place of its own, so it gets that of the key.
    Source child(const YAML::Node& node, const Place& key) const;

    bool isList() const { return node_.IsSequence(); }
    bool isMap() const { return node_.IsMap(); }
    bool isText() const { return node_.IsScalar(); }
    /// No value at all: `key:` or `~`.
    bool isEmpty() const { return !node_.IsDefined() || node_.IsNull(); }
    /// The plain text of a scalar, else empty.
    std::string text() const { return node_.IsScalar() ? node_.Scalar() : std::string(); }
    /// The members of a list, else none.
    std::vector<Source> members() const;

    /// The same node, in which "$name" and "${name}" stand for arguments: a text that is nothing else is
    /// replaced by the argument, whatever that is; within a longer text only texts can be put in.
    /// @param use  the place that asks for it, which the places of the node and of all in it name as well
    Source with(std::shared_ptr<const Arguments> arguments, const Place& use) const;

  private:
    void fillIn();

    std::shared_ptr<const std::string> file_;
    YAML::Node node_;
    int line_ = 0;
    std::shared_ptr<const Arguments> arguments_;
    std::shared_ptr<const std::string> use_; ///< see Place; null without one
};

/// The names of the arguments that a text asks for.
std::vector<std::string> ArgumentNames(const std::string& text);

/// One `key: value` of a mapping.
struct Entry {
    std::string name;
    Place place; ///< of the key
    Source value;
};

/// Reads a file.
/// @return its top node; none, with an error reported, when it can not be read or is not YAML
std::optional<Source> ReadYaml(const std::string& file, Diagnostics& diagnostics);

/// The same for a text that is in memory already.
std::optional<Source> ParseYaml(const std::string& file, const std::string& text, Diagnostics& diagnostics);

/// The entries of a mapping in the order of the file; reports anything but a mapping, and repeated keys.
/// @param what  how messages call the node, such as "'colors'"
std::vector<Entry> Entries(const Source& source, const Subject& what, Diagnostics& diagnostics);

/// Reports an entry whose name means nothing there.
/// @param what    what the message says before the name, such as "'colors': unknown"
/// @param known   the names that mean something, for a suggestion
/// @param remedy  the sentence that tells what to do about it
void ReportUnknown(const Entry& entry, const Subject& what, const std::vector<std::string>& known,
                   const std::string& remedy, Diagnostics& diagnostics);

/// A number, which may have decimals and an exponent, within what a panel's numbers can be.
std::optional<double> Real(const Source& source, const Subject& what, Diagnostics& diagnostics);

/// A whole number within a range, decimal or with 0x hexadecimal.
std::optional<int> Integer(const Source& source, int minimum, int maximum, const Subject& what,
                           Diagnostics& diagnostics);

/// The same without complaints; none when the text is not a whole number that an int can hold.
std::optional<int> ParseInteger(const std::string& text);

/// true/false, yes/no, on/off or 1/0.
std::optional<bool> Boolean(const Source& source, const Subject& what, Diagnostics& diagnostics);

/// Exactly `count` whole numbers in a list.
std::optional<std::vector<int>> Integers(const Source& source, std::size_t count, const Subject& what,
                                         Diagnostics& diagnostics);

/// A text; reports lists and mappings. An empty value is an empty text.
std::optional<std::string> Text(const Source& source, const Subject& what, Diagnostics& diagnostics);

/// A text in three languages: one for all, or a list of two or three whose last also stands for the rest.
std::optional<std::vector<std::string>> Texts(const Source& source, const Subject& what,
                                              Diagnostics& diagnostics);

} // namespace ptn
