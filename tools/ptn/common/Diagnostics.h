// What is wrong with the sources, collected so that one run reports everything it finds.
//
// How the functions of ptn fail:
// - What a user wrote or asked for that can not be: a function that takes a `Diagnostics` reports it there,
//   with what to do about it, and returns std::optional, or bool when it has nothing to return. What reads
//   many things at once (a section, a project, a state) reports each and returns or keeps the rest; whether
//   it is whole is asked of `failed`.
// - A text that is no number, colour or the like: a function without a `Diagnostics` returns std::optional;
//   its caller knows the better message.
// - A file of ours that can not be written, or a folder that can not be made:
// std::filesystem::filesystem_error.
//   Nobody catches it but main, and the build command, which has to tell that nothing was changed.
// Only the commands make an exit status of it.
#pragma once

#include "tools/ptn/common/Framework.h"

#include <fmt/core.h>
#include <iosfwd>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace ptn
{

/// A place in a source file; line 0 stands for the file as a whole.
struct Place {
    std::string file;
    int line = 0; ///< from 1
    /// "file:line" that puts it there, where that is in another file; else empty.
    std::string use = {};
};

/// What a message is about, or the whole message that begins with it. One of several alike is named, but is
/// not what tells two messages apart: a wrong line of a group is an item of every use of it, and yet one
/// mistake.
class Subject
{
  public:
    Subject(std::string text = "") : text_(std::move(text)) {}
    Subject(const char* text) : text_(text) {}

    /// One of several alike, such as "item 3".
    static Subject oneOf(const std::string& which);

    Subject& operator+=(const std::string& more);
    friend Subject operator+(Subject subject, const std::string& more) { return subject += more; }

    const std::string& text() const { return text_; }
    /// The text without the one of several alike.
    std::string kind() const { return text_.substr(which_); }

  private:
    std::string text_;
    std::size_t which_ = 0; ///< bytes at the beginning that name the one
};

enum class Severity {
    Error,   ///< stops the build
    Warning, ///< does not
    Finding, ///< an error of sources that are not those of this run
};

/// One message.
struct Diagnostic {
    Place place;
    Severity severity;
    Subject message;
};

/// Whether doubts are told: what may be meant as it stands, but mostly is not.
enum class Doubts {
    Left,
    Told,
};

class Diagnostics
{
  public:
    explicit Diagnostics(Doubts doubts = Doubts::Left) : doubts_(doubts) {}

    /// Adds an error. The same text at the same place is kept once, of whichever item it is.
    /// @param what  UTF-8: what is wrong, and what to do about it
    void error(const Place& place, const Subject& what) { add({place, Severity::Error, what}); }

    /// The same for what `about` is: its text, followed by the formatted one.
    template <typename... Values>
    void error(const Place& place, const Subject& about, fmt::format_string<Values...> text,
               Values&&... values)
    {
        error(place, about + fmt::format(text, std::forward<Values>(values)...));
    }

    /// Adds a remark that does not stop the build.
    void warning(const Place& place, const Subject& what) { add({place, Severity::Warning, what}); }

    /// Adds a remark that only "ptn check" is to make.
    void doubt(const Place& place, const Subject& what)
    {
        if (doubts_ == Doubts::Told)
            warning(place, what);
    }

    /// Adds what another run has found, as remarks that do not stop anything.
    void add(const Diagnostics& others);

    /// Whether there was an error.
    bool failed() const { return errors_ > 0; }
    int errors() const { return errors_; }
    /// What there is beside errors.
    int warnings() const { return static_cast<int>(found_.size()) - errors_; }

    /// Writes "file:line: text" for each, in the order in which they were found, with the first place of use.
    void print(std::ostream& out) const;

  private:
    void add(const Diagnostic& one);

    Doubts doubts_;
    std::vector<Diagnostic> found_;
    std::set<std::tuple<std::string, int, Severity, std::string>> known_;
    int errors_ = 0;
};

} // namespace ptn
