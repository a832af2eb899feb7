// The starting project of "ptn new".
#include "tools/ptn/starter/NewProject.h"

namespace ptn
{

namespace
{

const char* const projectYaml =
    u8R"(# What all screens share. "ptn build . build/ProjPath" compiles this folder.
program: @NAME@ # its profile is called @NAME@.ini
registry: program/Registry.cpp # "ptn check" compares the screens with it

fonts: # X names; the pixel size stands after the seventh "-"
  small: "-*-fixed-medium-r-normal--14-*-*-*-*-*-*-*"
  normal: "-*-fixed-medium-r-normal--16-*-*-*-*-*-*-*"
  large: "-*-fixed-medium-r-normal--24-*-*-*-*-*-*-*"

# Names of the cells that screens and program share, with how many cells each has.
codes:
  CLOCK: 7 # the framework's own: year, month, day, weekday, hour, minute, second
  SPARE: 3
  ERROR: 1 # 11: the error line
  SYSTEM: 88 # of the framework, up to 99
  SPEED: 1 # 100
  SETPOINT: 1 # 101
  PUMP: 4 # 102-105

flags: {} # cells whose accesses appear in the log, such as SETPOINT: yes

profile:
  TESSARY: { DISPSIZE: [640, 480], WAITTIMER: 2 }
  PTRN: { PTRNSTART: Main, PTRNSTOP: Stop }
  LOG: { LOGFILE: "@DIR@/log", LOGTIMR: 10, LOGSIZE: 100, LOGSAVE: 30 }
  FONT: { LANGUAGE: 0 }
  COLOR: { CURSOR_FG: [5654, 12850, 20303], CURSOR_BG: [65535, 65535, 65535] }
)";

const char* const lookYaml = u8R"(# Colours, and what things look like unless a screen says otherwise.
colors:
  body: "#D3DAE1"
  card: "#F4F6F8"
  light: "#FFFFFF"
  dark: "#A3AFBB"
  title: "#16324F"
  text: "#1B2733"
  soft: "#53616E"
  button: "#E4EAF0"
  primary: "#2A6CAB"
  field: "#10202E"
  value: "#86E3B4"
  stopped: "#8C98A3"
  running: "#2C9A5B"
  attention: "#E39A12"
  fault: "#C8322B"

styles:
  window: # of every screen
    width: 640
    height: 480
    title-height: 40
    title-color: light
    title-back: title
    title-font: large
    body-color: body
    clock: seconds
    clock-font: normal
    frame-color: title
    edit-color: text
    edit-back: light
  item: { clear: card } # of every item
  # of every item of a type
  group-box: { face: card, top: light, left: light, bottom: dark, right: dark }
  line: { color: dark }
  rectangle: { outline: dark }
  circle: { outline: dark }
  bar-graph: { bar: primary, back: light, frame: dark }
  text: { color: text, font: normal }
  variable-text: { color: text, back: light, font: normal }
  numeric: { color: value, back: field, font: large }
  button: { light: light, dark: dark, face: button, color: text, color-locked: soft, font: normal }
  radio: { color: text, color-locked: soft, back: card, back-locked: card, font: normal }
  check: { color: text, color-locked: soft, back: card, back-locked: card, font: normal }
  mark: { color: primary, back: card }
  scroll-bar: { light: light, dark: dark, face: body, thumb: button }
  # by name: "style: heading"
  heading: { color: primary, font: large }
  small: { color: soft, font: small }
  lamp: { outline: soft, fill: [stopped, running, attention, fault] }
  stop: { face: fault, color: light }

# Items that belong together, to be used again with other texts and cells.
groups:
  pump:
    parameters: [name, cell]
    items:
      - { type: circle, style: lamp, at: [0, 0], size: [28, 28], data: $cell }
      - { type: text, at: [44, 6], text: $name }
)";

const char* const mainYaml = u8R"(# The first screen.
name: Main
title: Plant

items:
  # --- speed -----------------------------------------------------------------------------------------
  - { type: group-box, rect: [16, 56, 400, 256] }
  - { type: text, style: heading, at: [32, 68], text: Speed }
  - { type: numeric, at: [32, 112], data: SPEED, width: 6 }
  - { type: text, at: [112, 116], text: rpm }
  - { type: bar-graph, rect: [32, 160, 384, 184], data: SPEED, direction: horizontal }
  - { type: text, style: small, at: [32, 192], text: "0" }
  - { type: text, style: small, at: [363, 192], text: "100" }

  - { type: text, at: [208, 116], text: Setpoint }
  - { type: numeric, at: [288, 112], data: SETPOINT, width: 4, entry: yes }
  - { type: spin, at: [352, 104], size: [32, 40], data: SETPOINT }

  # --- pumps -----------------------------------------------------------------------------------------
  - { type: group-box, rect: [416, 56, 624, 256] }
  - { type: text, style: heading, at: [432, 68], text: Pumps }
  - at: [440, 108]
    grid: { columns: 1, step: [0, 36] }
    items:
      - { use: pump, name: Feed, cell: PUMP+0 }
      - { use: pump, name: Return, cell: PUMP+1 }
      - { use: pump, name: Cooling, cell: PUMP+2 }
      - { use: pump, name: Drain, cell: PUMP+3 }

  # --- foot ------------------------------------------------------------------------------------------
  - { type: button, at: [16, 416], size: [160, 48], text: States, action: open-application, pattern: States }
  - { type: button, style: stop, at: [464, 416], size: [160, 48], text: Stop, action: stop }
)";

const char* const statesYaml = u8R"(# What the colours mean.
name: States

items:
  - { type: group-box, rect: [16, 56, 624, 256] }
  - { type: circle, style: lamp, at: [40, 84], size: [24, 24], fill: stopped }
  - { type: text, at: [80, 88], text: Stopped }
  - { type: circle, style: lamp, at: [40, 124], size: [24, 24], fill: running }
  - { type: text, at: [80, 128], text: Running }
  - { type: circle, style: lamp, at: [40, 164], size: [24, 24], fill: attention }
  - { type: text, at: [80, 168], text: Attention }
  - { type: circle, style: lamp, at: [40, 204], size: [24, 24], fill: fault }
  - { type: text, at: [80, 208], text: Fault }
  - { type: button, at: [16, 416], size: [160, 48], text: Back, action: open-application, pattern: Main }
)";

const char* const stopYaml = u8R"(# Shown while the system stops.
name: Stop
window: { placement: framed, remember: yes, size: [320, 120], frame-width: 2, clock: none, body-color: card }
items:
  - { type: text, font: large, at: [34, 64], text: Stopping the system }
)";

const char* const registryCpp =
    u8R"(// Which window class shows which screen, and what the program does on its own.
#include "comndata/ComnData.h"
#include "window/PtrnDisp.h"
#include "window/Registry.h"

#include <cstring>

namespace
{

constexpr const char* kScreens[] = {"Main", "States", "Stop"};

// Cells, as project.yaml numbers them.
constexpr int kSpeed = 100;
constexpr int kSetpoint = 101;
constexpr int kPump = 102;
constexpr int kPumps = 4;

} // namespace

// A screen that needs code of its own gets a class derived from CPtrnDisp here.
CPtrnDisp* GetPtrnWnd(const char* name)
{
    for (const char* screen : kScreens)
        if (std::strcmp(screen, name) == 0)
            return new CPtrnDisp;
    return nullptr;
}

int UserInit()
{
    Set_iData(kSetpoint, 60, nullptr, 0);
    return 1;
}

void UserExit() {}

// Every 100 ms: the speed follows its setpoint, the pumps change state now and then.
void UserTimr()
{
    const int speed = Get_iData(kSpeed, nullptr, 0);
    const int setpoint = Get_iData(kSetpoint, nullptr, 0);
    if (speed != setpoint)
        Set_iData(kSpeed, speed + (speed < setpoint ? 1 : -1), nullptr, 0);
    static int ticks = 0;
    if (++ticks % 20 == 0)
        Set_wData(kPump + ticks / 20 % kPumps, static_cast<WORD>(ticks / 80 % 4), nullptr, 0);
}
)";

const char* const cmakeLists = u8R"(cmake_minimum_required(VERSION 3.16)
project(@NAME@ CXX)

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Release or Debug" FORCE)
endif()
set(TESSARY "@TESSARY@" CACHE PATH "Sources of Tessary")
set(TESSARY_BUILD "@BUILD@" CACHE PATH "Folder that Tessary was built in")

find_package(PkgConfig REQUIRED)
pkg_check_modules(GTK2 REQUIRED IMPORTED_TARGET gtk+-2.0 gthread-2.0 x11)

add_executable(@NAME@ program/Registry.cpp)
target_compile_features(@NAME@ PRIVATE cxx_std_17)
target_compile_options(@NAME@ PRIVATE -finput-charset=UTF-8 -fexec-charset=EUC-JP -Wno-deprecated-declarations)
target_include_directories(@NAME@ PRIVATE ${TESSARY})
target_link_libraries(@NAME@ PRIVATE
  ${TESSARY_BUILD}/libtessary_main.a ${TESSARY_BUILD}/libtessary.a PkgConfig::GTK2)

# The screens, checked and compiled into the folder that the program runs in.
add_custom_target(screens ALL
  COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/log
  COMMAND ${TESSARY_BUILD}/ptn check ${CMAKE_SOURCE_DIR}
  COMMAND ${TESSARY_BUILD}/ptn build --quiet ${CMAKE_SOURCE_DIR} ${CMAKE_BINARY_DIR}/ProjPath
  VERBATIM)
)";

const char* const stateYaml = u8R"(# Values for "ptn render . Main --state example.state".
clock: 2025-03-02 09:05:07
cells:
  SPEED: 42
  SETPOINT: 60
  PUMP+0: { color: 1 }
  PUMP+2: { color: 2 }
)";

} // namespace

const std::vector<StarterFile>& StarterFiles()
{
    static const std::vector<StarterFile> files = {
        {"project.yaml", projectYaml},   {"look.yaml", lookYaml},
        {"screens/main.yaml", mainYaml}, {"screens/states.yaml", statesYaml},
        {"screens/stop.yaml", stopYaml}, {"program/Registry.cpp", registryCpp},
        {"CMakeLists.txt", cmakeLists},  {"example.state", stateYaml},
    };
    return files;
}

} // namespace ptn
