// The text of a field while it is being edited, as corrected entry has it: what is typed replaces a number or
// goes where the cursor stands, whole characters are removed, and nothing exceeds the field. Knows neither
// windows nor cells.
#pragma once

#include <string>

namespace tessary
{

class FieldEditor
{
  public:
    enum class Kind { Text, Number, Hexadecimal };

    struct Field {
        Kind kind = Kind::Text;
        int width = 0;    ///< bytes
        int decimals = 0; ///< of a number
    };

    FieldEditor() = default;
    /// @param text  EUC-JP: what the field shows, without blanks around a number. The cursor stands at its
    /// end.
    FieldEditor(Field field, std::string text);

    const std::string& text() const { return text_; }
    /// Byte index into the text, always between two characters.
    int cursor() const { return static_cast<int>(cursor_); }

    /// Types one character. The first one replaces a number, unless its old text was touched before; a sign
    /// applies to the whole number.
    /// @param character  one or two bytes of EUC-JP
    /// @return false when it is refused: no character of such a field, or no room
    bool type(const std::string& character);

    /// BackSpace and Delete. The first one clears a number that was not touched before.
    /// @return false when there is nothing to remove
    bool removeBefore();
    bool removeAfter();

    // Moves; a number that was not touched before is edited from then on. @return false when it can not move
    bool left();
    bool right();
    bool home();
    bool end();
    /// Puts the cursor before the character that covers a byte, or at the end.
    void place(int byte);

    /// True when there is something to store: a text that differs from the first one, or one typed in place
    /// of it.
    bool isChanged() const { return replaced_ || text_ != first_; }

    /// False for a number without a digit.
    bool isComplete() const;

    /// Whether the number, written with its decimals, fits its field, and a double when it is hexadecimal.
    /// Texts always do.
    bool fits() const { return fits(text_); }

    /// The number's value; 0 without a digit.
    double value() const;

  private:
    bool fits(const std::string& text) const;
    bool isNumberKey(char key) const;
    bool sign(char key);
    bool accept(std::string text, std::size_t cursor);
    std::size_t before(std::size_t at) const;
    std::size_t after(std::size_t at) const;
    bool moveTo(std::size_t at);

    Field field_;
    std::string first_;
    std::string text_;
    std::size_t cursor_ = 0;
    bool fresh_ = false;    ///< a number that nobody has touched yet
    bool replaced_ = false; ///< typed anew, in place of what was there
};

} // namespace tessary
