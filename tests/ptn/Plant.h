// A small project in which nothing is wrong, for tests that make one mistake in it.
#pragma once

#include "tests/ptn/Sources.h"

#include <string>

/// Sources of four screens with all that a project has: codes, messages, limits, groups, marks, a bitmap and
/// a program that knows the screens.
class Plant : public Sources
{
  public:
    Plant();

    /// Puts another text in place of one that a file has, once; without the old text the file is written
    /// anew.
    /// @return false when the old text is not there
    bool change(const std::string& file, const std::string& from, const std::string& to);
    /// A file below src as it is; empty when there is none.
    std::string text(const std::string& file) const;
};
