// What stops a start: a message box tells the operator, and standard error, in English, who has started the
// program.
#pragma once

#include <string>

namespace tessary
{

struct Refusal {
    std::string box;    ///< EUC-JP
    std::string advice; ///< what is wrong and what to do; sentences in English
    int status = 0;     ///< of the program
};

/// Tells it and waits until the message box is closed.
void RefuseStart(const Refusal& refusal);

/// Tells on standard error why the program can not go on, without a box.
void Fail(const std::string& advice, int status);

/// Exit status of the program: that of the last refusal or failure, 0 without one.
int StartStatus();

/// Writes a line to standard error, beginning with the program's name.
void Tell(const std::string& text);

} // namespace tessary
