// A complete temporary project: profile, project directory, log directory. Everything is written
// as bytes by the test's own code, never by the code under test.
#pragma once

#include "base/Types.h"
#include "tools/ptn/system/TemporaryFolder.h"

#include <filesystem>
#include <string>
#include <vector>

struct LogLine {
    std::string time;
    std::string file;  ///< caller's source file, empty when none
    int line = 0;      ///< caller's line, 0 when no file
    std::string mesg1; ///< category without trailing blanks
    std::string mesg2; ///< message
};

class Project
{
  public:
    /// Makes <temporary>/panel.ini, <temporary>/ProjPath and <temporary>/log, makes the temporary folder
    /// the working directory and points ProfName and ProjPath at it. Nothing is loaded yet.
    /// @param parent  of the temporary folder; usually that of all temporary folders
    explicit Project(const std::filesystem::path& parent = {});

    /// A folder in memory, for tests that write files thousands of times: a disk takes its time for each.
    static std::filesystem::path inMemory();

    ~Project();
    Project(const Project&) = delete;
    Project& operator=(const Project&) = delete;

    std::string root() const { return folder_.path().string(); }
    std::string folder() const { return root() + "/ProjPath"; }
    std::string logFolder() const { return root() + "/log"; }
    std::string profile() const { return root() + "/panel.ini"; }

    /// Adds a key; panel.ini is written anew at once. Logging is on with LOGSIZE 1 from the start.
    Project& set(const std::string& section, const std::string& key, const std::string& value);
    Project& unset(const std::string& section, const std::string& key);

    /// Adds a row of the code table (34 bytes, little-endian) and writes "PtrnCode".
    /// Without `first`, the row follows the rows before it, beginning with 1.
    Project& code(const std::string& name, int count, int first = -1);

    /// Sets a byte of "PtrnFlag"; bit 0 makes accesses to that data number appear in the log.
    Project& flag(int no, int value = 1);

    /// Whole files in the project directory.
    Project& write(const std::string& name, const std::string& bytes);
    std::string read(const std::string& name) const;
    bool exists(const std::string& name) const;

    /// Opens the log (LogfileInit) and the store (ComnDataInit); closed again by the destructor.
    void start();

    /// Flushes the log and returns every line of every daily file so far.
    std::vector<LogLine> log();
    /// The messages of those lines alone.
    std::vector<std::string> messages();
    /// Empties the log files.
    void clearLog();

  private:
    void writeProfile() const;
    ptn::TemporaryFolder folder_;
    std::string before_;
    std::vector<std::pair<std::string, std::vector<std::pair<std::string, std::string>>>> keys_;
    std::string codes_;
    int next_ = 1;
    std::string flags_;
    bool started_ = false;
};

/// Whole files by path; a missing file reads as empty.
std::string readFile(const std::string& path);
void writeFile(const std::string& path, const std::string& bytes);

/// A value as four little-endian bytes.
std::string int32(std::int32_t value);
/// A text in a field of `size` bytes, the rest zero.
std::string field(const std::string& text, std::size_t size);
