// Golden pictures: what something looked like when a person last judged it right.
//
//     expectGolden(canvas.picture(), "marks");
//
// compares pixel by pixel, without any tolerance, with tests/golden/marks.png. A difference fails the test,
// names the first pixel with both colours, and leaves golden/marks.actual.png and golden/marks.diff.png in
// the build folder (differing pixels red, everything else pale).
//
// A change that is meant, and a new test, get their pictures with
//
//     TESSARY_RENEW_GOLDENS=1 ctest --preset sanitize -R Golden
//
// which writes those that differ or are missing and fails their tests, so that no run that renewed anything
// passes; pictures that are right stay untouched. Look at every picture that git shows as changed, run the
// tests again without the variable, and commit the pictures together with the change.
//
// What a picture may show: this project's own drawing, bitmap fonts of the X server by their exact names
// (tests/support/Sheet.h), images scaled by gdk-pixbuf. None of these looks at the user's settings, and
// nothing is antialiased. A picture does rely on the versions below it: how the server draws wide lines and
// arcs, and how gdk-pixbuf scales. The versions stand in the file, and a failure under others says so.
#pragma once

#include "tests/support/Picture.h"

#include <string>

/// Fails the running test, at the caller's line, unless the picture is the golden one of that name.
void expectGolden(const Picture& picture, const std::string& name, const char* file = __builtin_FILE(),
                  int line = __builtin_LINE());

/// A folder of golden pictures and one for what failed; expectGolden uses tests/golden and the build folder.
class Goldens
{
  public:
    /// @param folder   holds <name>.png; a name may be that of a file in a folder within
    /// @param results  receives <name>.actual.png and <name>.diff.png; made when needed
    /// @param renew    write pictures that differ or are missing
    Goldens(std::string folder, std::string results, bool renew);

    /// Success only when the golden picture existed and every pixel is alike; files that an earlier failure
    /// left are removed then.
    testing::AssertionResult check(const Picture& picture, const std::string& name) const;

  private:
    std::string goldenFile(const std::string& name) const;
    std::string actualFile(const std::string& name) const;
    std::string diffFile(const std::string& name) const;
    testing::AssertionResult renewed(const Picture& picture, const std::string& name) const;

    std::string folder_;
    std::string results_;
    bool renew_;
};

/// Both pictures over each other, as large as needed for both: pixels that differ or that only one of them
/// has are red, the others pale grey.
Picture difference(const Picture& drawn, const Picture& expected);
