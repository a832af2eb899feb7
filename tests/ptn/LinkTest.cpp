// The section "links": what the build makes of it, what it refuses, and what a dump gives back.
#include "tests/ptn/Messages.h"

#include "base/EucText.h"

#include <fstream>
#include <gmock/gmock.h>

using tessary::EucToUtf8;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace
{

constexpr const char* PLANT =
    R"(codes: { CLOCK: 7, SPARE: 3, ERROR: 1, SPEED: 1, LEVEL: 4, PUMP: 4, NAME: 1, PLC: 1, MODE: 1 }
links:
  plc:
    modbus: tcp://127.0.0.1:1502
    unit: 7
    period: 200 ms
    status: PLC
    lost: { color: 3, disabled: no }
    failed: [書けない, not written]
    points:
      - { data: SPEED, holding: 0, scale: 0.1 }
      - { data: LEVEL, input: 10, type: float32, order: CDAB, count: 4 }
      - { data: PUMP, coil: 0, count: 4, write: yes, period: 1 s }
      - { data: PUMP+1, discrete: 8, part: color, values: { 0: 0, 1: 2 } }
      - { data: MODE, holding: 40, bits: 4-6 }
      - { data: NAME, holding: 100, type: text, length: 16 }
  broker:
    mqtt: mqtts://broker.example
    user: panel1
    password-file: "@DIR@/secret"
    online: tessary/panel1/online
    points:
      - { data: SPARE+1, topic: plant/tank1, json: /sensor/temperature }
      - { data: SPARE+2, topic: plant/preset/set, write: yes, retain: yes, qos: 1, read: plant/preset }
  demo:
    simulate:
    points:
      - { data: SPARE, wave: flow, by: { PUMP: 1.5, PUMP+1: -2 }, rate: -0.5, from: 0, to: 50 }
      - { data: PLC, part: color, steps: [0, 2], period: 2 s }
  shell:
    socket: "@DIR@/panel.sock"
)";

class Links : public testing::Test
{
  protected:
    Sources sources;
};

class LinkMessages : public Messages
{
};

} // namespace

TEST_F(Links, are_compiled_and_dumped_as_they_were)
{
    sources.write("project.yaml", EucToUtf8(PLANT)).screen("name: Main\nwindow: { size: [64, 64] }\n");
    const PtnResult built = sources.build();
    ASSERT_EQ(built.status, 0) << built.err;
    const std::string compiled = sources.built("PtrnLink");
    EXPECT_THAT(compiled, HasSubstr("\"holding\": 0"));

    const PtnResult dumped = sources.run("dump out/ProjPath -o again");
    EXPECT_EQ(dumped.status, 0);
    EXPECT_THAT(dumped.err, IsEmpty());
    const PtnResult again = sources.run("build again out2/ProjPath");
    EXPECT_EQ(again.status, 0) << again.err;
}

TEST_F(Links, of_which_there_are_none_leave_no_file)
{
    sources.base();
    ASSERT_EQ(sources.build().status, 0);
    EXPECT_THAT(sources.built("PtrnLink"), IsEmpty());
}

TEST_F(Links, that_are_damaged_are_no_compiled_links)
{
    sources.write("project.yaml", EucToUtf8(PLANT)).screen("name: Main\nwindow: { size: [64, 64] }\n");
    ASSERT_EQ(sources.build().status, 0);
    ASSERT_EQ(sources.run("dump out/ProjPath -o one").status, 0);
    const std::string good = sources.built("PtrnLink");
    std::ofstream(sources.output() + "/PtrnLink") << good.substr(0, good.size() / 2);
    const PtnResult dumped = sources.run("dump out/ProjPath -o two");
    EXPECT_EQ(dumped.status, 1);
    EXPECT_THAT(dumped.err,
                HasSubstr("PtrnLink: no links that can be read: no links. Get an undamaged copy."));
}

TEST_F(Links, that_a_panel_would_refuse_are_not_built)
{
    std::string plant = EucToUtf8(PLANT);
    const std::string host = "broker.example";
    plant.replace(plant.find(host), host.size(), std::string(2000, 'b'));
    sources.write("project.yaml", plant).screen("name: Main\nwindow: { size: [64, 64] }\n");
    const PtnResult result = sources.build();
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("'links': a panel would refuse them: "));
}

TEST_F(Links, replay_a_file_of_the_sources)
{
    sources
        .write("project.yaml", "codes: { CLOCK: 7, A: 2 }\nlinks:\n  demo:\n    simulate:\n    points:\n"
                               "      - { data: A, replay: day.csv }\n")
        .write("day.csv", "time,value\n0,1.5\n10,2\n20,-3e2\n");
    ASSERT_EQ(sources.build().status, 0);
    const std::string compiled = sources.built("PtrnLink");
    EXPECT_THAT(compiled, HasSubstr("-300.0"));
    EXPECT_THAT(compiled, HasSubstr("20.0"));
}

TEST_F(Links, are_explained_key_by_key)
{
    const PtnResult help = sources.run("help links");
    EXPECT_EQ(help.status, 0);
    for (const char* key :
         {"modbus: tcp://", "mqtt: mqtt://", "simulate:",     "socket:", "timeout", "gap",
          "lost",           "status",        "password-file", "online",  "holding", "discrete",
          "order",          "bits",          "json",          "retain",  "wave",    "replay",
          "int16 | uint16", "default 500 ms"})
        EXPECT_THAT(help.out, HasSubstr(key));
}

TEST_P(LinkMessages, name_place_and_remedy)
{
    sources.write("project.yaml", "codes: { CLOCK: 7, A: 5, B: 3 }\n").write("l.yaml", GetParam().text);
    expectOnly("l.yaml");
}

#define MODBUS    "links:\n  plc:\n    modbus: tcp://h\n"
#define POINT(IT) MODBUS "    points:\n      - " IT "\n"
#define MQTT(IT)  "links:\n  b:\n    mqtt: mqtt://h\n    points:\n      - " IT "\n"
#define WAVE(IT)  "links:\n  s:\n    simulate:\n    points:\n      - " IT "\n"

const MessageCase LINK_CASES[] = {
    {"no_kind", "links:\n  plc: { period: 1 s }\n",
     ":2: link 'plc' has no kind. Write one of 'modbus', 'mqtt', 'simulate' and 'socket'."},
    {"two_kinds", "links:\n  plc: { modbus: tcp://h, simulate: }\n",
     ":2: link 'plc' has more than one kind. Write one of 'modbus', 'mqtt', 'simulate' and 'socket'."},
    {"wrong_address", "links:\n  plc: { modbus: 10.0.0.1 }\n",
     ":2: link 'plc': '10.0.0.1' is no address. Write tcp://HOST:PORT, or "
     "rtu:///dev/NAME?baud=19200&parity=even&stop=1 for a serial line."},
    {"wrong_parity", "links:\n  plc: { modbus: 'rtu:///dev/ttyS0?parity=mark' }\n",
     ":2: link 'plc': 'rtu:///dev/ttyS0?parity=mark' is no address. Write tcp://HOST:PORT, or "
     "rtu:///dev/NAME?baud=19200&parity=even&stop=1 for a serial line."},
    {"unit_on_a_line", "links:\n  plc: { modbus: 'rtu:///dev/ttyS0', unit: 0 }\n",
     ":2: link 'plc': 'unit' can not be 0 on a serial line. Write 1 to 247."},
    {"wrong_port", "links:\n  b: { mqtt: 'mqtt://h:70000' }\n",
     ":2: link 'b': 'mqtt://h:70000' is no address. Write mqtt://HOST:PORT, or mqtts://HOST:PORT with "
     "encryption."},
    {"certificate_without_encryption", "links:\n  b: { mqtt: 'mqtt://h', ca-file: ca.pem }\n",
     ":2: link 'b': certificates are for mqtts://. Write mqtts://, or leave them out."},
    {"certificate_without_key", "links:\n  b: { mqtt: 'mqtts://h', cert-file: c.pem }\n",
     ":2: link 'b': 'cert-file' and 'key-file' go together. Write both, or none."},
    {"password_without_user", "links:\n  b: { mqtt: 'mqtt://h', password-file: p }\n",
     ":2: link 'b': 'password-file' needs 'user'."},
    {"socket_without_path", "links:\n  s: { socket: }\n",
     ":2: link 's': the path of a socket has 1 to 107 bytes, such as \"@DIR@/panel.sock\"."},
    {"unknown_key", "links:\n  plc: { modbus: tcp://h, periode: 1 s }\n",
     ":2: link 'plc': unknown 'periode'. Did you mean 'period'? 'ptn help links' lists them."},
    {"key_of_another_kind", "links:\n  plc: { modbus: tcp://h, online: x }\n",
     ":2: link 'plc': unknown 'online'. 'ptn help links' lists them."},
    {"time_without_a_unit", MODBUS "    period: 200\n",
     ":4: link 'plc': 'period' can not be '200'. Write a time from 100 ms to 1 h, such as 200 ms, 5 s or 1 "
     "min."},
    {"time_out_of_range", MODBUS "    period: 50 ms\n",
     ":4: link 'plc': 'period' can not be '50 ms'. Write a time from 100 ms to 1 h, such as 200 ms, 5 s or 1 "
     "min."},
    {"unknown_code", POINT("{ data: C, holding: 0 }"),
     ":5: link 'plc', C: 'data': no code 'C'. Did you mean 'A'? Add it to 'codes' or use another."},
    {"beyond_its_code", POINT("{ data: B+1, holding: 0, count: 3 }"),
     ":5: link 'plc', B+1: 3 cells from B+1 on are more than code 'B' has, 3. Correct 'count', or extend the "
     "code."},
    {"cell_of_the_clock", POINT("{ data: CLOCK+4, holding: 0 }"),
     ":5: link 'plc', CLOCK+4: the clock writes CLOCK+4. Use another cell."},
    {"two_writers", POINT("{ data: A, holding: 0, count: 3 }\n      - { data: A+2, holding: 9 }"),
     ":6: link 'plc', A+2: the value of A+2 has a point already, in src/l.yaml:5. Remove one of them."},
    {"two_writers_of_the_state",
     POINT("{ data: A, holding: 0, part: word }\n      - { data: A, coil: 9, part: color }"),
     ":6: link 'plc', A: the color of A+0 has a point already, in src/l.yaml:5. Remove one of them."},
    {"without_a_cell", POINT("{ holding: 0 }"), ":5: link 'plc', point 1 has no 'data'. Write its cell."},
    {"without_an_address", POINT("{ data: A }"),
     ":5: link 'plc', A+0 has no address. Write one of 'coil', 'discrete', 'holding' and 'input', with its "
     "address."},
    {"with_two_addresses", POINT("{ data: A, coil: 1, holding: 2 }"),
     ":5: link 'plc', A+0 has more than one address. Write one of 'coil', 'discrete', 'holding' and 'input', "
     "with its address."},
    {"address_out_of_range", POINT("{ data: A, holding: 65536 }"),
     ":5: link 'plc', A: 'holding' can not be '65536'. Write a whole number from 0 to 65535."},
    {"end_out_of_range", POINT("{ data: A, holding: 65530, type: float64, count: 2 }"),
     ":5: link 'plc', A+0 ends at address 65537, beyond the last one, 65535. Correct the address, 'type' or "
     "'count'."},
    {"unknown_type", POINT("{ data: A, holding: 0, type: uint61 }"),
     ":5: link 'plc', A: 'type' can not be 'uint61'. Did you mean 'uint16'? Write one of int16, uint16, "
     "int32, uint32, int64, uint64, float32, float64, bit, bcd16, text."},
    {"number_in_a_coil", POINT("{ data: A, coil: 0, type: int32 }"),
     ":5: link 'plc', A+0: 'type' can not be int32 there. A coil or discrete input is a bit: leave it out."},
    {"bit_in_a_register", POINT("{ data: A, holding: 0, type: bit }"),
     ":5: link 'plc', A+0: 'type' can not be bit there. Registers hold numbers: name one, or use 'bits'."},
    {"write_to_an_input", POINT("{ data: A, input: 0, write: yes }"),
     ":5: link 'plc', A+0: nobody can write there. Use a coil or holding register, or leave 'write' out."},
    {"text_without_length", POINT("{ data: A, holding: 0, type: text }"),
     ":5: link 'plc', A+0 is a text without 'length'. Write how many bytes it has."},
    {"text_as_a_value", POINT("{ data: A, holding: 0, type: text, length: 4, part: value }"),
     ":5: link 'plc', A+0: a text can only go to 'part: text'."},
    {"bits_of_a_float", POINT("{ data: A, holding: 0, type: float32, bits: 3 }"),
     ":5: link 'plc', A+0: 'bits' are those of one register. Leave 'type' out."},
    {"bits_the_wrong_way", POINT("{ data: A, holding: 0, bits: 6-4 }"),
     ":5: link 'plc', A: 'bits' can not be '6-4'. Write one bit, such as 3, or several, such as 4-6, from 0 "
     "to "
     "15."},
    {"scale_of_0", POINT("{ data: A, holding: 0, scale: 0 }"),
     ":5: link 'plc', A+0: 'scale' can not be 0. Write by what the plant's number is multiplied."},
    {"write_of_the_state", POINT("{ data: A, coil: 0, part: blink, write: yes }"),
     ":5: link 'plc', A+0: only 'value' and 'text' can be written. Leave 'write' out, or 'part'."},
    {"values_that_can_not_be_turned_round",
     POINT("{ data: A, holding: 0, write: yes, values: { 1: 5, 2: 5 } }"),
     ":5: link 'plc', A+0: 'values' give 5 twice, so that nobody can tell what is to be written."},
    {"topic_for_many", MQTT("{ data: A, topic: plant/+ }"),
     ":5: link 'b', A+0: a topic can not have '+' or '#'. Write the topic of one value."},
    {"without_a_topic", MQTT("{ data: A }"),
     ":5: link 'b', A+0 has no 'topic'. Write the one of its messages."},
    {"wrong_pointer", MQTT("{ data: A, topic: t, json: a.b }"),
     ":5: link 'b', A+0: 'json' can not be 'a.b'. Write a JSON pointer, such as /sensor/temperature."},
    {"retain_of_a_value_that_is_read", MQTT("{ data: A, topic: t, retain: yes }"),
     ":5: link 'b', A+0: 'retain' is for values that are written. Add 'write: yes', or leave it out."},
    {"unknown_wave", WAVE("{ data: A, wave: sinee }"),
     ":5: link 's', A: 'wave' can not be 'sinee'. Did you mean 'sine'? Write one of sine, ramp, triangle, "
     "square, random, walk, steps, constant, clock, counter, follow, flow, above, below."},
    {"without_a_wave", WAVE("{ data: A }"),
     ":5: link 's', A+0 has no 'wave'. Write one, such as wave: sine."},
    {"follow_nothing", WAVE("{ data: A, wave: follow }"),
     ":5: link 's', A+0: 'follow' needs 'of', the cell that it looks at."},
    {"file_that_is_not_there", WAVE("{ data: A, replay: gone.csv }"),
     ":5: link 's', A: 'replay': 'src/gone.csv' can not be read. Name a file with a value, or seconds and a "
     "value, in each line."},
    {"factor_of_no_cell", WAVE("{ data: A, wave: flow, by: { C: 1 } }"),
     ":5: link 's', A: 'by': no code 'C'. Did you mean 'A'? Add it to 'codes' or use another."},
    {"steps_and_times", WAVE("{ data: A, steps: [1, 2], times: [0] }"),
     ":5: link 's', A+0 has 1 'times' for 2 'steps'. Write one for each."},
    {"lost_color", MODBUS "    lost: { color: 4 }\n",
     ":4: link 'plc': 'lost': 'color' can not be '4'. Write a whole number from 0 to 3."},
    {"status_without_a_cell", MODBUS "    status: C\n",
     ":4: link 'plc': 'status': no code 'C'. Did you mean 'A'? Add it to 'codes' or use another."},
};

INSTANTIATE_TEST_SUITE_P(Ptn, LinkMessages, testing::ValuesIn(LINK_CASES), CaseName);
