#include "tools/ptn/common/CppSource.h"

#include <algorithm>
#include <cctype>

namespace ptn
{

namespace
{

class Reader
{
  public:
    explicit Reader(const std::string& source) : source_(source) {}

    CppSource read()
    {
        while (at_ < source_.size()) {
            if (source_.compare(at_, 2, "//") == 0)
                skipTo("\n");
            else if (source_.compare(at_, 2, "/*") == 0)
                at_ += 2, skipTo("*/");
            else if (source_.compare(at_, 2, "R\"") == 0)
                readRaw();
            else if (source_[at_] == '"')
                parts_.texts.push_back(quoted('"'));
            else if (source_[at_] == '\'' && !isWithinNumber())
                quoted('\'');
            else
                parts_.code += source_[at_++];
        }
        return parts_;
    }

  private:
    void skipTo(const std::string& end)
    {
        const std::size_t found = source_.find(end, at_);
        at_ = found == std::string::npos ? source_.size() : found + end.size();
    }

    bool isWithinNumber() const
    {
        return at_ > 0 && std::isalnum(static_cast<unsigned char>(source_[at_ - 1])) != 0;
    }

    std::string quoted(char quote)
    {
        std::string text;
        for (++at_; at_ < source_.size() && source_[at_] != quote && source_[at_] != '\n'; ++at_) {
            if (source_[at_] == '\\' && at_ + 1 < source_.size())
                ++at_;
            text += source_[at_];
        }
        ++at_;
        return text;
    }

    void readRaw()
    {
        const std::size_t open = source_.find('(', at_);
        if (open == std::string::npos) {
            at_ = source_.size();
            return;
        }
        const std::string end = ")" + source_.substr(at_ + 2, open - at_ - 2) + "\"";
        const std::size_t close = std::min(source_.find(end, open), source_.size());
        parts_.texts.push_back(source_.substr(open + 1, close - open - 1));
        at_ = std::min(close + end.size(), source_.size());
    }

    const std::string& source_;
    std::size_t at_ = 0;
    CppSource parts_;
};

} // namespace

CppSource ReadCpp(const std::string& source)
{
    return Reader(source).read();
}

} // namespace ptn
