#include "window/FieldEditor.h"

#include "base/EucText.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace tessary
{

namespace
{

bool IsDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

} // namespace

FieldEditor::FieldEditor(Field field, std::string text)
    : field_(field), first_(text), text_(std::move(text)), cursor_(text_.size()),
      fresh_(field.kind != Kind::Text)
{
}

bool FieldEditor::type(const std::string& character)
{
    if (field_.kind == Kind::Text) {
        std::string text = text_;
        return accept(text.insert(cursor_, character), cursor_ + character.size());
    }
    if (character.size() != 1)
        return false;
    const char key = character[0];
    if (field_.kind == Kind::Number && (key == '-' || key == '+'))
        return sign(key);
    if (!isNumberKey(key))
        return false;
    const char typed = static_cast<char>(
        field_.kind == Kind::Hexadecimal ? std::toupper(static_cast<unsigned char>(key)) : key);
    if (fresh_)
        return accept(std::string(1, typed), 1);
    std::string text = text_;
    return accept(text.insert(cursor_, 1, typed), cursor_ + 1);
}

bool FieldEditor::isNumberKey(char key) const
{
    if (field_.kind == Kind::Hexadecimal)
        return static_cast<unsigned char>(key) < 0x80 && std::isxdigit(static_cast<unsigned char>(key));
    if (key == '.')
        return field_.decimals > 0 && (fresh_ || text_.find('.') == std::string::npos);
    return IsDigit(key);
}

bool FieldEditor::sign(char key)
{
    if (key == '-' && fresh_)
        return accept("-", 1);
    const bool negative = text_.compare(0, 1, "-") == 0;
    if (negative) {
        // The cursor stays between the same digits.
        text_.erase(0, 1);
        cursor_ -= cursor_ > 0 ? 1 : 0;
        fresh_ = false;
        return true;
    }
    if (key == '+') {
        fresh_ = false;
        return true;
    }
    return accept("-" + text_, cursor_ + 1);
}

/// Takes a text over when it has room.
bool FieldEditor::accept(std::string text, std::size_t cursor)
{
    if (static_cast<int>(text.size()) > field_.width || !fits(text))
        return false;
    replaced_ = replaced_ || fresh_;
    fresh_ = false;
    text_ = std::move(text);
    cursor_ = cursor;
    return true;
}

bool FieldEditor::fits(const std::string& text) const
{
    if (field_.kind == Kind::Hexadecimal)
        return text.size() <= 16 && std::strtoull(text.c_str(), nullptr, 16) <= (1ULL << 53U);
    if (field_.kind != Kind::Number)
        return true;
    const std::size_t point = text.find('.');
    if (point != std::string::npos && static_cast<int>(text.size() - point - 1) > field_.decimals)
        return false;
    if (std::none_of(text.begin(), text.end(), IsDigit))
        return true;
    return std::snprintf(nullptr, 0, "%.*f", std::max(field_.decimals, 0), std::atof(text.c_str())) <=
           field_.width;
}

bool FieldEditor::removeBefore()
{
    if (fresh_)
        return accept("", 0);
    if (cursor_ == 0)
        return false;
    const std::size_t begin = before(cursor_);
    text_.erase(begin, cursor_ - begin);
    cursor_ = begin;
    return true;
}

bool FieldEditor::removeAfter()
{
    if (fresh_)
        return accept("", 0);
    if (cursor_ >= text_.size())
        return false;
    text_.erase(cursor_, after(cursor_) - cursor_);
    return true;
}

bool FieldEditor::left()
{
    return moveTo(before(cursor_));
}

bool FieldEditor::right()
{
    return moveTo(after(cursor_));
}

bool FieldEditor::home()
{
    return moveTo(0);
}

bool FieldEditor::end()
{
    return moveTo(text_.size());
}

bool FieldEditor::moveTo(std::size_t at)
{
    fresh_ = false;
    return std::exchange(cursor_, at) != at;
}

void FieldEditor::place(int byte)
{
    std::size_t at = 0;
    while (at < text_.size() && static_cast<int>(after(at)) <= byte)
        at = after(at);
    moveTo(at);
}

std::size_t FieldEditor::after(std::size_t at) const
{
    return at >= text_.size() ? at : at + EucCharacter(text_.c_str() + at);
}

std::size_t FieldEditor::before(std::size_t at) const
{
    // A second byte looks like a first one: characters are counted from the start.
    std::size_t begin = 0;
    for (std::size_t next = 0; next < at; next = after(next))
        begin = next;
    return begin;
}

bool FieldEditor::isComplete() const
{
    if (field_.kind == Kind::Number)
        return std::any_of(text_.begin(), text_.end(), IsDigit);
    return field_.kind == Kind::Text || !text_.empty();
}

double FieldEditor::value() const
{
    if (field_.kind == Kind::Hexadecimal)
        return static_cast<double>(std::strtoull(text_.c_str(), nullptr, 16));
    return std::atof(text_.c_str());
}

} // namespace tessary
