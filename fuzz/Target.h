// What fuzz targets share. A target is given bytes that somebody has changed and hands them to the code that
// reads such files; the sanitizers, and promise(), tell what is wrong with it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace fuzz
{

/// One object of it in each file of targets/.
class Target
{
  public:
    using Run = void (*)(const std::string& bytes);

    /// @param name  of its corpus
    Target(const char* name, Run run);

    /// @return null when there is none of that name
    static Target* find(std::string_view name);
    /// The only one of a program that has one.
    static Target& only();

    /// Hands the bytes over, in the first edition when their number is even, else in the latest. What was
    /// logged is dropped.
    void operator()(const std::string& bytes) const;

  private:
    const char* name_;
    Run run_;
};

/// The process's own project in memory: an empty folder, which is the working directory. ProjPath is its
/// folder "ProjPath", and the log, which is open, goes nowhere.
class Project
{
  public:
    static Project& own();

    /// A file below the working directory, whose folders are made. One that can not be made is left out.
    void write(const std::string& name, const std::string& bytes) const;
    std::string read(const std::string& name) const;
    /// A folder below the working directory, empty.
    void clear(const std::string& folder) const;

    /// The codes A (5 cells, from 1) and B (3), with empty cells.
    void load() const;

  private:
    Project();
};

/// Numbers and texts from bytes, for targets that need more than one file. Zeros when there are no more.
class Input
{
  public:
    explicit Input(std::string_view bytes) : rest_(bytes) {}

    bool empty() const { return rest_.empty(); }
    std::uint8_t byte();
    std::int32_t number();
    /// The bytes up to a zero, which is taken too.
    std::string text();

  private:
    std::string_view rest_;
};

/// The files of a folder in one input. Each begins with a line "@@@ NAME"; what stands before the first of
/// them is dropped, and so are names that go anywhere but into the folder.
std::map<std::string, std::string> Files(const std::string& bytes);

/// Says that a promise of the code was broken and ends the process, unless `kept`.
void promise(bool kept, const char* what);

} // namespace fuzz
