#include "tools/ptn/yaml/Documents.h"

#include <algorithm>
#include <optional>
#include <sstream>
#include <vector>
#include <yaml-cpp/eventhandler.h>

namespace ptn
{

namespace
{

/// Looks at a text without keeping what it holds.
class Documents : public YAML::EventHandler
{
  public:
    /// The first node of each that is not empty.
    const std::vector<YAML::Mark>& filled() const { return filled_; }
    /// Where the reader has found no way on.
    const std::optional<YAML::Mark>& stuck() const { return stuck_; }

    void OnDocumentStart(const YAML::Mark& mark) override
    {
        if (mark.pos == begin_)
            stuck_ = mark;
        begin_ = mark.pos;
        begun_ = false;
    }
    void OnDocumentEnd() override {}
    void OnNull(const YAML::Mark& /*mark*/, YAML::anchor_t /*anchor*/) override {}
    void OnAlias(const YAML::Mark& mark, YAML::anchor_t /*anchor*/) override { add(mark); }
    void OnScalar(const YAML::Mark& mark, const std::string& /*tag*/, YAML::anchor_t /*anchor*/,
                  const std::string& /*value*/) override
    {
        add(mark);
    }
    void OnSequenceStart(const YAML::Mark& mark, const std::string& /*tag*/, YAML::anchor_t /*anchor*/,
                         YAML::EmitterStyle::value /*style*/) override
    {
        add(mark);
    }
    void OnSequenceEnd() override {}
    void OnMapStart(const YAML::Mark& mark, const std::string& /*tag*/, YAML::anchor_t /*anchor*/,
                    YAML::EmitterStyle::value /*style*/) override
    {
        add(mark);
    }
    void OnMapEnd() override {}

  private:
    void add(const YAML::Mark& mark)
    {
        if (!begun_)
            filled_.push_back(mark);
        begun_ = true;
    }

    std::vector<YAML::Mark> filled_;
    std::optional<YAML::Mark> stuck_;
    int begin_ = -1;
    bool begun_ = false;
};

/// Almost all texts are: a mapping whose keys begin their lines holds everything up to a mark of documents.
bool IsAlone(const std::string& text, const YAML::Node& first)
{
    const auto has = [&](const std::string& mark) {
        return text.compare(0, mark.size(), mark) == 0 || text.find("\n" + mark) != std::string::npos;
    };
    return first.IsMap() && first.Style() == YAML::EmitterStyle::Block && first.Mark().column == 0 &&
           !has("---") && !has("...");
}

} // namespace

void CheckDocuments(const std::string& file, const std::string& text, const YAML::Node& first,
                    Diagnostics& diagnostics)
{
    if (IsAlone(text, first))
        return;
    std::istringstream stream(text);
    YAML::Parser parser(stream);
    Documents documents;
    while (!documents.stuck() && parser.HandleNextDocument(documents)) {
    }
    const std::vector<YAML::Mark>& filled = documents.filled();
    for (std::size_t i = first.IsNull() ? 0 : 1; i < filled.size(); ++i)
        diagnostics.error({file, filled[i].line + 1},
                          "a second document begins before this line, with '---', and would not be read. "
                          "Put it into a file of its own, or take the '---' away.");
    if (documents.stuck())
        diagnostics.error({file, documents.stuck()->line + 1},
                          "not valid YAML: a ',' belongs to no list. A text that begins with ',' needs "
                          "quotes; else look for brackets that end too early.");
}

} // namespace ptn
