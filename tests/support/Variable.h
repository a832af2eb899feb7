// A variable of the environment, for a while.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

/// Sets a variable, for this process and the programs that it starts; the destructor gives it back its former
/// value, or unsets it where it had none.
class Variable
{
  public:
    /// @param value  null unsets the variable
    Variable(const char* name, const char* value) : name_(name)
    {
        if (const char* before = std::getenv(name))
            before_ = before;
        set(value);
    }
    ~Variable() { set(before_ ? before_->c_str() : nullptr); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

    void set(const char* value)
    {
        if (value)
            setenv(name_, value, 1);
        else
            unsetenv(name_);
    }

  private:
    const char* name_;
    std::optional<std::string> before_;
};
