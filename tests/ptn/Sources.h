// A temporary folder of sources, and the tool itself run on it.
#pragma once

#include "tools/ptn/system/TemporaryFolder.h"

#include <string>

struct PtnResult {
    int status = -1;
    std::string out;
    std::string err;
};

class Sources
{
  public:
    /// Makes <temporary>/src with an empty "screens" and "bitmaps", and makes <temporary> the working
    /// directory.
    Sources();
    ~Sources();
    Sources(const Sources&) = delete;
    Sources& operator=(const Sources&) = delete;

    std::string root() const { return folder_.path().string(); }
    std::string output() const { return root() + "/out/ProjPath"; }
    std::string profile() const { return root() + "/out/panel.ini"; }

    /// Writes a file below src; texts are UTF-8.
    Sources& write(const std::string& name, const std::string& text);
    /// The same for src/screens/a.yaml.
    Sources& screen(const std::string& text) { return write("screens/a.yaml", text); }
    /// A project with two codes, three colours, two fonts, a mark and a style, in src/project.yaml.
    /// @param reserved  codes before those two
    Sources& base(const std::string& reserved = "");
    /// The same with the codes from cell 100 on, as "ptn check" asks for.
    Sources& checkedBase();

    /// Runs "ptn build src out/ProjPath".
    PtnResult build() const;
    /// Runs ptn with any arguments, for the shell.
    PtnResult run(const std::string& arguments) const;

    /// A built file; empty when there is none.
    std::string built(const std::string& name) const;

  private:
    ptn::TemporaryFolder folder_{"ptn-"};
    std::string before_;
};
