// The compiled links: written, read again, and read when they are damaged.
#include "links/ModelFile.h"

#include "base/EucText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>

using namespace tessary;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

LinkModel Plant()
{
    LinkConnection plc;
    plc.name = "plc";
    plc.address = "tcp://h:1502";
    plc.unit = 7;
    plc.status = {"PLC", 2};
    plc.lost.color = 3;
    plc.failed = {EucToUtf8("いいえ"), "no"};
    plc.file = "project.yaml";
    plc.line = 12;
    LinkPoint level;
    level.data = {"LEVEL", 1};
    level.count = 4;
    level.input = 10;
    level.type = TYPE_FLOAT32;
    level.order = ORDER_CDAB;
    level.values = {{0, 1}, {1.5, -2}};
    level.line = 14;
    plc.points.push_back(level);
    LinkConnection demo;
    demo.name = "demo";
    demo.kind = LINK_SIMULATE;
    LinkPoint flow;
    flow.data = {"A", 0};
    flow.wave = WAVE_FLOW;
    flow.by = {{{"PUMP", 1}, 1.5}};
    flow.steps = {1, 2.5};
    demo.points.push_back(flow);
    return {plc, demo};
}

std::string problemOf(const std::string& bytes)
{
    LinkModel model = Plant();
    std::string problem;
    EXPECT_FALSE(ReadLinks(bytes, model, problem)) << bytes;
    EXPECT_THAT(model, IsEmpty());
    return problem;
}

std::string withPoint(const std::string& kind, const std::string& point)
{
    return R"({"tessary-links":1,"connections":[{"name":"c",")" + kind + R"(":"","points":[)" + point +
           "]}]}";
}

} // namespace

TEST(Model, is_read_as_it_was_written)
{
    const std::string bytes = LinkBytes(Plant());
    LinkModel model;
    std::string problem;
    ASSERT_TRUE(ReadLinks(bytes, model, problem)) << problem;
    EXPECT_EQ(LinkBytes(model), bytes);
    ASSERT_THAT(model, SizeIs(2));
    EXPECT_EQ(model[0].points[0].type, TYPE_FLOAT32);
    EXPECT_EQ(model[0].points[0].address(), 10);
    EXPECT_EQ(model[0].points[0].area(), AREA_INPUT);
    EXPECT_EQ(model[1].points[0].by[0].first.text(), "PUMP+1");
}

TEST(Model, is_refused_when_it_is_something_else)
{
    EXPECT_EQ(problemOf(""), "no links");
    EXPECT_EQ(problemOf("[1]"), "no links");
    EXPECT_EQ(problemOf(R"({"tessary-links":2,"connections":[]})"), "of another version");
    EXPECT_EQ(problemOf(std::string(100000, '[')), "too large");
}

TEST(Model, is_refused_with_the_place_of_what_is_wrong)
{
    EXPECT_EQ(problemOf(withPoint("modbus", R"({"holding":1})")), "connection c: point 1: data");
    EXPECT_EQ(problemOf(withPoint("modbus", R"({"data":["A",0]})")), "connection c: point 1: address");
    EXPECT_EQ(problemOf(withPoint("modbus", R"({"data":["A",0],"holding":1,"coil":1})")),
              "connection c: point 1: address");
    EXPECT_EQ(problemOf(withPoint("modbus", R"({"data":["A",0],"holding":65536})")),
              "connection c: point 1: holding");
    EXPECT_EQ(problemOf(withPoint("modbus", R"({"data":["A",0],"holding":1,"type":99})")),
              "connection c: point 1: type");
    EXPECT_EQ(problemOf(withPoint("modbus", R"({"data":["A",0],"holding":1,"type":10})")),
              "connection c: point 1: type");
    EXPECT_EQ(problemOf(withPoint("modbus", R"({"data":["A",0],"holding":1,"scale":0})")),
              "connection c: point 1: scale");
    EXPECT_EQ(problemOf(withPoint("modbus", R"({"data":["A",0],"holding":1,"count":200000})")),
              "connection c: point 1: count");
    EXPECT_EQ(problemOf(withPoint("mqtt", R"({"data":["A",0],"topic":5})")), "connection c: point 1: topic");
    EXPECT_EQ(problemOf(withPoint("opcua", "{}")), "name or kind");
}

TEST(Model, that_is_damaged_anywhere_is_refused_or_read_as_something_valid)
{
    const std::string good = LinkBytes(Plant());
    std::minstd_rand random(1);
    int refused = 0;
    for (int i = 0; i < 3000; ++i) {
        std::string bytes = good;
        for (int n = 0; n < 3; ++n)
            bytes[random() % bytes.size()] = static_cast<char>(random() % 256);
        LinkModel model;
        std::string problem;
        if (!ReadLinks(bytes, model, problem)) {
            ++refused;
            EXPECT_THAT(problem, testing::Not(IsEmpty()));
        } else {
            for (const LinkConnection& connection : model)
                for (const LinkPoint& point : connection.points)
                    EXPECT_LE(point.count, LINK_CELLS_MAX);
        }
    }
    EXPECT_GT(refused, 1000);
}
