// Messages, limits and access-log flags: the tables of a project that go with its cells.
#pragma once

#include "base/Constants.h"
#include "tools/ptn/model/CodeTable.h"
#include "tools/ptn/model/NameTable.h"

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace ptn
{

/// The file "MesgData.prf".
class MessageTable
{
  public:
    /// Reads the section "messages": "name: text" or "name: {no: number, text: text, data: cell}"; texts may
    /// be lists with one for each language.
    void read(const Source& section, const CodeTable& codes, Diagnostics& diagnostics);

    const NameTable& names() const { return names_; }
    bool empty() const { return rows_.empty(); }

    std::string bytes() const;
    void load(const std::string& bytes, const Place& place);
    std::string yaml() const;

    struct Row {
        std::string code;
        int offset = 0;
        std::array<std::string, 3> texts; ///< EUC-JP
        Place place;
    };
    /// By their numbers.
    const std::map<int, Row>& rows() const { return rows_; }

  private:
    NameTable names_{"message", CONT_MESGDATA + 1, 1};
    std::map<int, Row> rows_;
};

/// From a lowest to a highest number.
struct ValueRange {
    double minimum = 0;
    double maximum = 0;
};

/// How the file "LimtData.prf" holds limits.
enum class LimitForm {
    Words,    ///< whole numbers from 0 to 65535, in hexadecimal
    Decimals, ///< any numbers, where limits bind
};

/// The form of an edition.
LimitForm LimitFormOf(int edition);

/// The file "LimtData.prf".
class LimitTable
{
  public:
    /// Reads the section "limits", a list of "{data: cell, count: cells, minimum, maximum, below: message,
    /// above: message}".
    void read(const Source& section, const CodeTable& codes, const MessageTable& messages, LimitForm form,
              Diagnostics& diagnostics);

    bool empty() const { return rows_.empty(); }

    /// The limits of the first row for a cell of a code; none without one.
    /// @param code  EUC-JP
    std::optional<ValueRange> rangeOf(const std::string& code, int offset) const;

    std::string bytes(LimitForm form) const;
    void load(const std::string& bytes, LimitForm form, const Place& place);
    std::string yaml(const MessageTable& messages) const;

    struct Row {
        std::string code;
        std::array<int, 2> offsets{}; ///< last and first: a row covers the cells from the second to the first
        ValueRange limits;
        std::array<int, 2> errors{};
        Place place;
    };
    /// By their numbers.
    const std::map<int, Row>& rows() const { return rows_; }

  private:
    void readRow(const Source& source, int& number, const CodeTable& codes, const MessageTable& messages,
                 LimitForm form, Diagnostics& diagnostics);
    std::map<int, Row> rows_;
};

/// The file "PtrnFlag": which cells appear in the log.
class FlagTable
{
  public:
    /// Reads the section "flags": "CODE: yes" for all cells of a code, "CODE+2: yes" for one; a number sets
    /// the whole byte.
    void read(const Source& section, const CodeTable& codes, Diagnostics& diagnostics);

    /// Without the section the program keeps what it has.
    bool given() const { return given_; }

    std::string bytes(const CodeTable& codes) const;
    void load(const std::string& bytes);
    std::string yaml(const CodeTable& codes) const;

  private:
    bool given_ = false;
    std::map<int, int> flags_;
};

} // namespace ptn
