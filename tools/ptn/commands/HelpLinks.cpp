#include "tools/ptn/commands/HelpLinks.h"

#include "links/Fields.h"

#include <fmt/core.h>
#include <iomanip>
#include <ostream>
#include <string>

namespace ptn
{

using namespace tessary;

namespace
{

constexpr double ENDLESS = 1e300;

/// What the value of a field is, by the type of its member.
struct KindOf {
    FieldForm form;
    const char* const* choices;
    double minimum;
    double maximum;

    std::string range() const
    {
        const bool below = minimum > -ENDLESS;
        const bool above = maximum < ENDLESS;
        return below && above ? fmt::format(" {}..{}", minimum, maximum)
               : below        ? fmt::format(", {} or more", minimum)
                              : "";
    }

    template <class T> std::string operator()(int T::*) const
    {
        if (form == FieldForm::Duration)
            return fmt::format("time {} s..{} s, such as 200 ms", minimum / 1000, maximum / 1000);
        if (form != FieldForm::Choice)
            return "number" + range();
        std::string list;
        for (const char* const* name = choices; *name; ++name)
            list += (list.empty() ? "" : " | ") + std::string(*name);
        return list;
    }
    template <class T> std::string operator()(double T::*) const { return "number with decimals" + range(); }
    template <class T> std::string operator()(bool T::*) const { return "yes | no"; }
    template <class T> std::string operator()(std::string T::*) const
    {
        return form == FieldForm::Path ? "file; \"@DIR@/name\" is one beside the project directory" : "text";
    }
    template <class T> std::string operator()(std::vector<double> T::*) const { return "list of numbers"; }
    template <class T> std::string operator()(ValuePairs T::*) const { return "{ number: number, ... }"; }
    template <class T> std::string operator()(BitRange T::*) const { return "bits" + range(); }
    template <class T> std::string operator()(CellName T::*) const { return "cell"; }
    template <class T> std::string operator()(CellFactors T::*) const { return "{ cell: number, ... }"; }
    template <class T> std::string operator()(LostLook T::*) const { return "mapping"; }
    template <class T> std::string operator()(std::vector<std::string> T::*) const
    {
        return "text, or list with one per language";
    }
};

template <class T> void PrintFields(int kind, const std::vector<Field<T>>& fields, std::ostream& out)
{
    for (const Field<T>& field : fields)
        if (field.of(kind))
            out << "    " << std::left << std::setw(16) << field.name << field.help << "\n"
                << std::string(20, ' ')
                << std::visit(KindOf{field.form, field.choices, field.minimum, field.maximum}, field.member)
                << "; default " << field.initial << "\n";
}

struct KindHelp {
    const char* address;
    const char* text;
};

constexpr KindHelp KINDS[LINK_KINDS] = {
    {"tcp://HOST:PORT, or rtu:///dev/NAME?baud=19200&parity=even&data=8&stop=1",
     "A device, or a gateway to one. Registers that are near each other are asked for together."},
    {"mqtt://HOST:PORT, or mqtts://HOST:PORT with encryption, which verifies the broker",
     "A broker. Other protocols reach the panel through a gateway to MQTT."},
    {"(nothing behind it)", "A made-up plant: the screens live before there is a device."},
    {"\"@DIR@/panel.sock\"", "For other processes of the same user on this machine; see 'ptn help cell'."},
};

} // namespace

void PrintLinks(std::ostream& out)
{
    out << "links: cells that live in the plant. Each connection has a name of its own:\n\n"
           "  links:\n"
           "    plc:\n"
           "      modbus: tcp://192.168.0.5\n"
           "      status: PLC\n"
           "      lost: { color: 3 }\n"
           "      points:\n"
           "        - { data: SPEED, holding: 0, scale: 0.1 }\n"
           "        - { data: PUMP, coil: 0, count: 4, write: yes }\n"
           "        - { data: FAULT, discrete: 8, part: color, values: { 0: 0, 1: 2 } }\n";
    for (int kind = 0; kind < LINK_KINDS; ++kind) {
        out << "\n"
            << LINK_KIND_NAMES[kind] << ": " << KINDS[kind].address << "\n  " << KINDS[kind].text << "\n";
        PrintFields(kind, ConnectionFields(), out);
        if (kind == LINK_SOCKET)
            continue;
        out << "  Each of its 'points':\n";
        PrintFields(kind, PointFields(), out);
        if (kind == LINK_SIMULATE)
            out << "    replay          file in the sources with a value, or seconds and a value, in each "
                   "line\n";
    }
    out << "\nWaves: sine, ramp, triangle and square go from 'from' to 'to' in a period; random and walk "
           "have a\n"
           "new value after each period; steps has one of its list; counter goes up by 1; constant is set "
           "once\n"
           "and may be changed; clock is the time of day; follow goes towards the cell 'of' by 'rate' in "
           "each\n"
           "second; flow changes by 'rate' and by the cells 'by'; above and below compare 'of' with "
           "'limit'.\n";
}

} // namespace ptn
