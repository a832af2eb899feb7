#include "tools/ptn/common/Csv.h"

namespace ptn
{

namespace
{

class Reader
{
  public:
    explicit Reader(const std::string& text) : text_(text) {}

    std::vector<CsvRow> read()
    {
        std::vector<CsvRow> rows;
        while (at_ < text_.size()) {
            CsvRow row{line_, {field()}};
            while (at_ < text_.size() && text_[at_] == ',') {
                ++at_;
                row.fields.push_back(field());
            }
            if (at_ < text_.size())
                ++at_; // the line end
            ++line_;
            if (row.fields.size() > 1 || !row.fields[0].empty())
                rows.push_back(row);
        }
        return rows;
    }

  private:
    std::string field()
    {
        std::string value;
        if (at_ < text_.size() && text_[at_] == '"')
            value = quoted();
        while (at_ < text_.size() && text_[at_] != ',' && text_[at_] != '\n')
            value += text_[at_++];
        if ((at_ == text_.size() || text_[at_] == '\n') && !value.empty() && value.back() == '\r')
            value.pop_back();
        return value;
    }

    std::string quoted()
    {
        std::string value;
        for (++at_; at_ < text_.size(); ++at_) {
            if (text_[at_] == '"' && text_.compare(at_ + 1, 1, "\"") == 0)
                ++at_;
            else if (text_[at_] == '"')
                return ++at_, value;
            line_ += text_[at_] == '\n';
            value += text_[at_];
        }
        return value;
    }

    const std::string& text_;
    std::size_t at_ = 0;
    int line_ = 1;
};

} // namespace

std::vector<CsvRow> ParseCsv(const std::string& text)
{
    return Reader(text).read();
}

std::string CsvField(const std::string& text)
{
    if (text.find_first_of(",\"\n\r") == std::string::npos)
        return text;
    std::string quoted = "\"";
    for (const char byte : text)
        quoted += byte == '"' ? std::string("\"\"") : std::string(1, byte);
    return quoted + "\"";
}

} // namespace ptn
