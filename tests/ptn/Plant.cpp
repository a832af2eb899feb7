#include "tests/ptn/Plant.h"

#include "tests/support/Picture.h"
#include "tests/support/Project.h"

#include <filesystem>

namespace
{

// Lines are counted by the tests: what is put in between two of them moves the places in the messages.
constexpr const char* PROJECT = u8R"(program: plant
edition: 2
registry: program
codes:
  CLOCK: 7
  SPARE: 3
  ERROR: 1
  SYSTEM: 88
  SPEED: 2
  PUMP: 4
  NOTE: 1
fonts:
  small: '-*-fixed-medium-r-normal--14-*-*-*-*-*-*-*'
  normal: '-*-fixed-medium-r-normal--16-*-*-*-*-*-*-*'
messages:
  low: [低すぎます, Too low]
  high: Too high
limits:
  - { data: SPEED+0, minimum: 0, maximum: 100, below: low, above: high }
profile:
  TESSARY: { DISPSIZE: [640, 480], WAITTIMER: 2 }
  PTRN: { PTRNSTART: Main, PTRNSTOP: Stop }
  LOG: { LOGFILE: '@DIR@/log', LOGTIMR: 10, LOGSIZE: 100, LOGSAVE: 30 }
  FONT: { LANGUAGE: 0 }
  COLOR: { CURSOR_FG: [5654, 12850, 20303], CURSOR_BG: [65535, 65535, 65535] }
)";

constexpr const char* LOOK = R"(colors: { black: '#000000', white: '#FFFFFF', grey: '#808080' }
styles:
  window:
    { width: 640, height: 480, title-height: 40, title-color: white, title-font: normal, clock: seconds }
  item: { clear: black }
  text: { color: black, font: normal }
  numeric: { color: black, back: white, font: normal }
  variable-text: { color: black, back: white, font: normal }
  button: { light: white, dark: black, face: grey, font: normal }
)";

constexpr const char* GROUPS = R"(groups:
  pump:
    parameters: [name, cell]
    items:
      - { type: circle, at: [0, 0], size: [28, 28], fill: grey, data: $cell }
      - { type: text, at: [44, 6], text: $name }
  foot:
    items:
      - { type: button, at: [16, 416], size: [160, 48], text: Back, key: 1,
          action: open-application, pattern: Main }
)";

constexpr const char* MAIN = R"(name: Main
title: Plant
logo: logo.png
window: { logo-button: yes }
items:
  - { type: numeric, at: [32, 112], data: SPEED, width: 6, entry: yes, minimum: 0, maximum: 100 }
  - { type: bar-graph, rect: [32, 160, 384, 184], data: SPEED, minimum: 0, maximum: 100 }
  - { type: spin, at: [352, 104], size: [32, 40], data: SPEED+1, minimum: 0, maximum: 50 }
  - { use: pump, at: [440, 108], name: Feed, cell: PUMP+0 }
  - { use: pump, at: [440, 148], name: Drain, cell: PUMP+1 }
  - { type: variable-text, at: [32, 208], data: NOTE, width: 20 }
  - { type: mark, at: [600, 60], mark: dot }
  - { type: button, at: [16, 416], size: [160, 48], text: Detail, key: 2,
      action: open-application, pattern: Detail }
  - { type: button, at: [192, 416], size: [160, 48], text: Ask, key: 3, action: open-child-1, pattern: Ask }
  - { type: button, at: [464, 416], size: [160, 48], text: Stop, key: 4, action: stop }
)";

constexpr const char* DETAIL = R"(name: Detail
items:
  - { type: radio, at: [32, 100], text: Slow, data: PUMP+2, value: 0, font: normal }
  - { type: radio, at: [32, 132], text: Fast, data: PUMP+2, value: 1, font: normal }
  - { type: check, at: [32, 164], text: Buzzer, data: PUMP+3, font: normal }
  - { type: scroll-bar, rect: [400, 100, 424, 300], data: NOTE, visible: 5, total: 20 }
  - { type: button, at: [192, 416], size: [160, 48], text: Reset, action: message, data: PUMP+0 }
  - { use: foot }
)";

constexpr const char* ASK = R"(name: Ask
window: { placement: framed, remember: yes, size: [320, 160], clock: none }
items:
  - { type: text, at: [24, 60], text: Sure }
  - { type: button, at: [80, 96], size: [160, 48], text: Close, action: close }
)";

constexpr const char* STOP = R"(name: Stop
window: { placement: framed, remember: yes, size: [320, 120], clock: none }
items:
  - { type: text, at: [34, 64], text: Stopping }
)";

constexpr const char* PROGRAM = R"(// Which window class shows which screen.
constexpr const char* SCREENS[] = {"Main", "Detail", "Ask", "Stop"};
)";

std::string Marks()
{
    std::string marks = "marks:\n  dot:\n    no: 100\n    art: |\n";
    for (int row = 0; row < 32; ++row)
        marks += "      " + std::string(32, row % 31 ? '.' : 'X') + "\n";
    return marks;
}

} // namespace

Plant::Plant()
{
    std::filesystem::create_directories(root() + "/src/program");
    write("project.yaml", PROJECT).write("look.yaml", LOOK).write("groups.yaml", GROUPS);
    write("marks.yaml", Marks());
    write("screens/main.yaml", MAIN).write("screens/detail.yaml", DETAIL);
    write("screens/ask.yaml", ASK).write("screens/stop.yaml", STOP);
    write("program/Registry.cpp", PROGRAM);
    Picture(24, 24, 0x808080).frame(0, 0, 23, 23, 0x000000).save(root() + "/src/bitmaps/logo.png");
}

bool Plant::change(const std::string& file, const std::string& from, const std::string& to)
{
    std::string bytes = text(file);
    const std::size_t at = bytes.find(from);
    if (at == std::string::npos)
        return false;
    write(file, from.empty() ? to : bytes.replace(at, from.size(), to));
    return true;
}

std::string Plant::text(const std::string& file) const
{
    return readFile(root() + "/src/" + file);
}
