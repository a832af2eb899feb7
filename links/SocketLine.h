// The lines that other processes exchange with a panel: "get NAME[+n]", "set NAME[+n] VALUE", "watch
// NAME...", "list". UTF-8; a text with blanks at its ends, or one that could be taken for a number, stands in
// quotes.
#pragma once

#include "links/Values.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace tessary
{

/// Cells by code, UTF-8: the first data number, and how many there are.
using CellCodes = std::map<std::string, std::pair<int, int>>;

struct SocketRequest {
    enum class Kind { Error, Get, Set, Watch, List };
    Kind kind = Kind::Error;
    int cell = 0;
    std::string text; ///< the cell's name, "CODE+n"; or what is wrong
    LinkValue value;
};

/// What a line asks for: "watch" one request for each cell, everything else one.
std::vector<SocketRequest> ParseSocketLine(const std::string& line, const CellCodes& codes);

/// "NAME+n NUMBER", and the text in quotes when there is one.
/// @param text  EUC-JP
std::string CellLine(const std::string& name, double number, const std::string& text);

/// A text in quotes, with '\' before quotes and '\'.
std::string QuotedText(const std::string& utf8);

} // namespace tessary
