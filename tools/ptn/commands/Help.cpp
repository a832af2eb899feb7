// "ptn help": commands, the reference of items and windows, and the table of editions.
#include "config/Edition.h"
#include "pattern/ActionTable.h"
#include "pattern/ItemTable.h"
#include "pattern/RealParm.h"
#include "pattern/ScreenClass.h"
#include "tools/ptn/commands/Command.h"
#include "tools/ptn/commands/HelpLinks.h"
#include "tools/ptn/common/Framework.h"
#include "tools/ptn/common/Names.h"

#include <fmt/core.h>
#include <iomanip>
#include <iostream>
#include <limits>
#include <sstream>
#include <string>

namespace ptn
{

namespace
{

constexpr const char* ATTRIBUTES = "attributes"; ///< topics of the help
constexpr const char* EDITIONS = "editions";
constexpr const char* LINKS = "links";
constexpr const char* WINDOW = "window"; ///< beside the types of items

std::string Range(const ParmSchema& parm)
{
    const bool open = parm.minimum == std::numeric_limits<int>::min();
    return open ? "" : std::to_string(parm.minimum) + ".." + std::to_string(parm.maximum);
}

std::string Choices(const ParmSchema& parm)
{
    std::string list;
    for (const ParmChoice& choice : parm.choices)
        list += (list.empty() ? "" : " | ") + std::string(choice.name);
    return list;
}

std::string KindText(const ParmSchema& parm)
{
    const std::string variants = parm.count > 1 ? ", or one per state" : "";
    switch (parm.kind) {
    case ParmKind::Color:
        return (parm.enable >= 0 ? "colour or none" : "colour") + variants;
    case ParmKind::OptionalColor:
        return "colour or none" + variants;
    case ParmKind::Font:
        return "font";
    case ParmKind::Mark:
        return "mark" + variants;
    case ParmKind::Flag:
        return "yes | no";
    case ParmKind::Choice:
        return Choices(parm);
    case ParmKind::Bits:
        return "list of " + Choices(parm);
    case ParmKind::Pixels:
        return "pixels " + Range(parm);
    case ParmKind::Real:
        return parm.minimum < 0 ? "number with decimals" : "number with decimals, above 0";
    case ParmKind::Message:
        return "message or none";
    case ParmKind::Count:
    case ParmKind::Number:
        break;
    }
    return Range(parm).empty() ? "whole number" : "number " + Range(parm);
}

std::string InitialText(const ParmSchema& parm)
{
    switch (parm.kind) {
    case ParmKind::Flag:
        return parm.initial ? "yes" : "no";
    case ParmKind::Choice:
    case ParmKind::Bits:
        for (const ParmChoice& choice : parm.choices)
            if (choice.value == parm.initial)
                return choice.name;
        return "none";
    case ParmKind::Color:
    case ParmKind::OptionalColor:
        return parm.enable >= 0 ? "none" : "number " + std::to_string(parm.initial);
    case ParmKind::Font:
    case ParmKind::Mark:
        return "number " + std::to_string(parm.initial);
    case ParmKind::Real:
        return fmt::format("{}", RealParm(parm.initial));
    case ParmKind::Message:
        return parm.initial ? std::to_string(parm.initial) : "none";
    default:
        return std::to_string(parm.initial);
    }
}

void PrintTable(SchemaTable<ParmSchema> parms, std::ostream& out)
{
    for (const ParmSchema& parm : parms) {
        // The corners are said with rect, at and size.
        if (parm.index < 4 && std::string(parm.name).size() == 2)
            continue;
        out << "  " << std::left << std::setw(16) << parm.name << parm.help << "\n"
            << std::string(18, ' ') << KindText(parm) << "; default " << InitialText(parm);
        if (parm.since)
            out << "; from edition " << RowOf(*parm.since).edition << " on";
        out << "\n";
    }
}

const char* TextHelp(ItemText text)
{
    switch (text) {
    case ItemText::Caption:
        return "what it shows, or a list with one text per language\n";
    case ItemText::BitmapName:
        return "name of a file in bitmaps/, or a list with one per language\n";
    case ItemText::None:
        break;
    }
    return nullptr;
}

void PrintItem(const ItemClass& item, std::ostream& out)
{
    out << item.name << ": " << item.help << "\n\nOf its own:\n";
    if (const char* text = TextHelp(item.text))
        out << "  " << std::left << std::setw(16) << "text" << text;
    PrintTable(item.parms, out);
    out << "\nOf every item:\n"
           "  rect            [x1, y1, x2, y2]: left, upper, right and lower edge\n"
           "  at, size        [x, y] and [width, height] instead; texts, fields, radio buttons, check boxes\n"
           "                  and marks know their size\n"
           "  style           name of a style, or a list of names; later ones override earlier ones\n"
           "  data            cell: CODE, CODE+2, or its number\n"
           "  action          what happens when it is operated (ptn help attributes)\n"
           "  pattern         screen that the action opens\n"
           "  repeat          { count: 5, step: [dx, dy], data: 1 }: copies; count: [columns, rows] for a "
           "grid\n"
           "  parm            { index: value }: parameters without a name\n";
    PrintTable(CommonParms(), out);
}

void PrintClasses(std::ostream& out)
{
    out << "\nBeside 'window' a screen may have 'class', a ready-made class for programs without classes of\n"
           "their own (tessary-panel):\n";
    for (const ScreenClass& one : ScreenClasses())
        out << "  " << std::left << std::setw(16) << one.name << one.help << "\n";
}

// The attributes of an item type or of "window"; without a name all types, actions and how to go on.
// Returns false when there is no such type.
bool PrintAttributes(const std::string& type, std::ostream& out)
{
    if (type == WINDOW) {
        out << "window: the window of a screen\n\n"
               "  size, at        [width, height] and, when it is not at the origin, [left, top]\n"
               "  parm, parm2     { index: value }; ten numbers for the application\n";
        PrintTable(HeaderParms(), out);
        PrintClasses(out);
        return true;
    }
    if (!type.empty()) {
        const ItemClass* item = FindItemClass(type.c_str());
        if (item)
            PrintItem(*item, out);
        return item != nullptr;
    }
    out << "An item: { type: TYPE, attribute: value, ... } or TYPE: { attribute: value, ... }\n\n"
           "Types of items (ptn help attributes TYPE):\n";
    for (const ItemClass& item : ItemClasses())
        out << "  " << std::left << std::setw(16) << item.name << item.help << "\n";
    out << "  " << std::left << std::setw(16) << "window"
        << "the window of a screen\n\nActions:\n";
    for (const ActionSchema& action : Actions())
        out << "  " << std::left << std::setw(18) << action.name << action.help << "\n";
    return true;
}

/// Writes a text in lines that end before a column, all of them but the first one indented.
void PrintWrapped(const std::string& text, std::size_t indent, std::ostream& out)
{
    constexpr std::size_t WIDTH = 100;
    std::istringstream words(text);
    std::size_t column = indent;
    for (std::string word; words >> word; column += word.size() + 1) {
        if (column > indent && column + word.size() > WIDTH) {
            out << "\n" << std::string(indent, ' ');
            column = indent;
        }
        out << (column > indent ? " " : "") << word;
    }
    out << "\n";
}

void PrintEditions(std::ostream& out)
{
    constexpr int INDENT = 20;
    out << "Editions: what an operator sees and does. A project without 'edition' in project.yaml is of\n"
           "edition 1, and stays as it is. An edition has all that those before it have. 'ptn check' warns\n"
           "of what is marked (*) where a screen of an earlier edition uses it.\n";
    for (int edition = 2; edition <= LATEST_EDITION; ++edition) {
        out << "\nedition: " << edition << "\n";
        for (const EditionRow& row : EditionRows()) {
            if (row.edition != edition)
                continue;
            const std::string name = row.name + std::string(row.surprising ? " (*)" : "");
            out << "  " << std::left << std::setw(INDENT - 2) << name;
            PrintWrapped(row.text, INDENT, out);
        }
    }
}

class HelpCommand : public Command
{
  public:
    const char* name() const override { return "help"; }
    const char* summary() const override
    {
        return "Explain commands, the attributes of items and windows, editions, and links";
    }
    void addOptions(CLI::App& line) override;
    int run() override;

  private:
    std::vector<std::string> words() const;
    int explainAttributes(const std::string& type) const;

    const CLI::App* program_ = nullptr;
    std::string topic_;
    std::string type_;
};

void HelpCommand::addOptions(CLI::App& line)
{
    program_ = line.get_parent();
    line.add_option("TOPIC", topic_, "A command, attributes, editions, or links");
    line.add_option("TYPE", type_, "Of attributes: item type, or window");
}

int HelpCommand::run()
{
    if (topic_.empty()) {
        std::cout << program_->get_formatter()->make_help(program_, program_->get_name(),
                                                          CLI::AppFormatMode::Normal);
        return 0;
    }
    if (topic_ != ATTRIBUTES && !type_.empty()) {
        std::cerr << "ptn: '" << type_ << "' is one word too many. Write 'ptn help " << topic_ << "'"
                  << (FindItemClass(type_.c_str()) ? " or 'ptn help attributes " + type_ + "'" : "") << ".\n";
        return 1;
    }
    if (const CLI::App* command = FindCommand(*program_, topic_)) {
        std::cout << command->help(program_->get_name());
        return 0;
    }
    if (topic_ == EDITIONS) {
        PrintEditions(std::cout);
        return 0;
    }
    if (topic_ == LINKS) {
        PrintLinks(std::cout);
        return 0;
    }
    return explainAttributes(topic_ == ATTRIBUTES ? type_ : topic_);
}

// What help can be asked about.
std::vector<std::string> HelpCommand::words() const
{
    std::vector<std::string> words = {WINDOW};
    for (const ItemClass& item : ItemClasses())
        words.push_back(item.name);
    if (topic_ == ATTRIBUTES)
        return words;
    words.insert(words.end(), {ATTRIBUTES, EDITIONS, LINKS});
    for (const CLI::App* command : program_->get_subcommands({}))
        words.push_back(command->get_name());
    return words;
}

int HelpCommand::explainAttributes(const std::string& type) const
{
    if (PrintAttributes(type, std::cout))
        return 0;
    std::cerr << "ptn: no type '" << type << "'." << Suggestion(type, words()) << " The types are:\n";
    PrintAttributes("", std::cerr);
    return 1;
}

} // namespace

std::unique_ptr<Command> MakeHelp()
{
    return std::make_unique<HelpCommand>();
}

} // namespace ptn
