// MQTT against the broker that many plants use, with passwords and encryption.
#include "tests/links/LinkedPlant.h"

#include "base/EucText.h"
#include "config/Settings.h"

#include <chrono>
#include <csignal>
#include <fstream>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace tessary;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace
{

class MqttPlant : public LinkedPlant
{
  protected:
    MqttPlant() { settings("listener " + std::to_string(port) + " 127.0.0.1\nallow_anonymous true\n"); }

    /// What the broker is started with.
    void settings(const std::string& text)
    {
        writeFile(project.root() + "/broker.conf", "user root\npersistence false\nlog_type all\n" + text);
    }
    void broker()
    {
        broker_ = std::make_unique<Program>("/usr/sbin/mosquitto", "mosquitto",
                                            std::vector<std::string>{"-c", project.root() + "/broker.conf"});
        waitFor([&] { return broker_->output().find(" running") != std::string::npos; }, "the broker");
    }
    void endBroker() { broker_.reset(); }
    void signal(int number) { kill(broker_->pid(), number); }

    void plant(const std::vector<std::string>& points, const std::string& more = "",
               const std::string& address = "")
    {
        std::string yaml = "  broker:\n    mqtt: " +
                           (address.empty() ? "mqtt://127.0.0.1:" + std::to_string(port) : address) + "\n" +
                           more + "    points:\n";
        for (const std::string& point : points)
            yaml += "      - " + point + "\n";
        link(yaml);
    }
    std::string client(const std::string& program) const
    {
        return program + " -p " + std::to_string(port) + " " + access + " ";
    }
    void publish(const std::string& topic, const std::string& message, const std::string& options = "")
    {
        EXPECT_EQ(run(client("mosquitto_pub") + options + " -t " + topic + " -m '" + message + "'"), "");
    }
    /// The message that the broker keeps for a topic.
    std::string retained(const std::string& topic)
    {
        return run(client("mosquitto_sub") + "-W 5 -C 1 -t " + topic);
    }
    void makeCertificates(const std::string& host)
    {
        run("cd " + project.root() +
            " && openssl req -x509 -newkey rsa:2048 -nodes -keyout ca.key -out ca.pem -days 2 -subj /CN=ca"
            " && openssl req -newkey rsa:2048 -nodes -keyout server.key -out server.csr -subj /CN=" +
            host + " && echo subjectAltName=DNS:" + host +
            " >names && openssl x509 -req -in server.csr -CA ca.pem -CAkey ca.key -CAcreateserial"
            " -out server.pem -days 2 -extfile names"
            " && openssl req -x509 -newkey rsa:2048 -nodes -keyout other.key -out other.pem -days 2 -subj "
            "/CN=other");
        // By each of its addresses, of which the panel takes the first.
        settings("listener " + std::to_string(port) + " localhost\nallow_anonymous true\ncafile " +
                 project.root() + "/ca.pem\ncertfile " + project.root() + "/server.pem\nkeyfile " +
                 project.root() + "/server.key\n");
    }

    const int port = freePort();
    std::string access; ///< options of the clients

  private:
    std::unique_ptr<Program> broker_;
};

} // namespace

TEST_F(MqttPlant, shows_numbers_texts_and_what_pointers_name)
{
    broker();
    publish("plant/kept", "7", "-r");
    plant({"{ data: A, topic: plant/flow }", "{ data: A+1, topic: plant/tank1, json: /sensor/temperature }",
           "{ data: A+2, topic: plant/tank1, json: /levels, count: 3 }",
           "{ data: A+6, topic: plant/name, part: text }",
           "{ data: A+7, topic: plant/fault, part: color, values: { 1: 2 } }",
           "{ data: A+8, topic: plant/kept }", "{ data: A+9, topic: plant/flow, scale: 2, offset: 1 }"});
    ASSERT_TRUE(waitFor([&] { return number(8) == 7; }, "the retained value"));
    publish("plant/flow", "12.5");
    publish("plant/tank1", R"({"sensor":{"temperature":21.25},"levels":[1,2,3]})");
    publish("plant/name", EucToUtf8("ポンプ"));
    publish("plant/fault", "1");
    ASSERT_TRUE(waitFor([&] { return word(7) == 2; }, "the values"));
    EXPECT_EQ(number(0), 12.5);
    EXPECT_EQ(number(9), 26);
    EXPECT_EQ(number(1), 21.25);
    EXPECT_EQ(number(4), 3);
    EXPECT_EQ(text(6), "ポンプ");
    publish("plant/flow", "closed");
    ASSERT_TRUE(waitFor([&] { return text(0) == "closed"; }, "the text"));
    EXPECT_EQ(number(0), 12.5);
}

TEST_F(MqttPlant, messages_that_make_no_sense_change_nothing_and_are_told_once)
{
    broker();
    plant({"{ data: A, topic: t, json: /v }", "{ data: A+1, topic: t2 }"}, "    lost: { color: 3 }\n");
    ASSERT_TRUE(waitState(LinkState::Connected));
    publish("t2", "0"); // the subscription is there when this has come
    publish("t", R"({"v":5})");
    ASSERT_TRUE(waitFor([&] { return number(0) == 5; }, "the value"));
    for (const char* message :
         {"{", "[]", R"({"v":{}})", R"({"v":1e999})", "[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[", "%s%n"})
        publish("t", message);
    publish("t2", "8");
    ASSERT_TRUE(waitFor([&] { return number(1) == 8; }, "the other one"));
    EXPECT_EQ(number(0), 5);
    EXPECT_EQ(word(0), 3) << "what it shows is not to be believed";
    EXPECT_EQ(logged("broker: A+0: not a number (project.yaml:"), 1);
    publish("t", R"({"v":6})");
    ASSERT_TRUE(waitFor([&] { return number(0) == 6; }, "the value"));
    EXPECT_EQ(word(0), 0);
}

TEST_F(MqttPlant, change_of_a_cell_is_published)
{
    broker();
    plant({"{ data: A, topic: plant/preset/set, write: yes, retain: yes, qos: 1, read: plant/preset }",
           "{ data: A+1, topic: plant/free, write: yes, retain: yes }"});
    ASSERT_TRUE(waitState(LinkState::Connected));
    publish("plant/preset", "5");
    ASSERT_TRUE(waitFor([&] { return number(0) == 5; }, "the value"));
    set(1, 2.5);
    ASSERT_TRUE(waitFor([&] { return LinksStatus()[0].written == 1; }, "the confirmation"));
    EXPECT_EQ(retained("plant/free"), "2.5\n");
    set(0, 9);
    tickFor(0.3);
    EXPECT_EQ(retained("plant/preset/set"), "9\n");
    EXPECT_EQ(number(0), 9);
    publish("plant/preset", "8"); // the plant holds it within its own limits
    EXPECT_TRUE(waitFor([&] { return number(0) == 8; }, "the plant's value"));
    EXPECT_THAT(errorLine(), IsEmpty());
}

TEST_F(MqttPlant, change_that_the_plant_does_not_answer_returns_and_is_told)
{
    Language = 1;
    broker();
    plant({"{ data: A, topic: set, write: yes, qos: 1, read: plant/preset }"}, "    timeout: 500 ms\n");
    ASSERT_TRUE(waitState(LinkState::Connected));
    set(0, 3);
    tickFor(0.05);
    EXPECT_EQ(errorLine(), "Not written  A+0 = 3  not read yet");
    publish("plant/preset", "5");
    ASSERT_TRUE(waitFor([&] { return number(0) == 5; }, "the value"));
    set(0, 9);
    EXPECT_TRUE(waitFor([&] { return number(0) == 5; }, "the plant's value"));
    EXPECT_EQ(errorLine(), "Not written  A+0 = 9  no answer");
    Language = 0;
}

TEST_F(MqttPlant, tells_others_that_it_is_there)
{
    broker();
    plant({"{ data: A, topic: t }"}, "    online: tessary/panel1/online\n    client: panel1\n");
    ASSERT_TRUE(waitState(LinkState::Connected));
    tickFor(0.2);
    EXPECT_EQ(retained("tessary/panel1/online"), "1\n");
    LinksExit();
    EXPECT_EQ(retained("tessary/panel1/online"), "0\n");
}

TEST_F(MqttPlant, that_is_killed_is_told_by_its_last_will)
{
    broker();
    plant({"{ data: A, topic: t }"}, "    online: tessary/panel1/online\n");
    LinksExit();
    const pid_t panel = fork();
    if (panel == 0) {
        LinksInit(nullptr);
        for (;;) {
            LinksTimr();
            usleep(10000); // the ticks of a panel that lives until it is killed
        }
    }
    ASSERT_TRUE(waitFor([&] { return retained("tessary/panel1/online") == "1\n"; }, "the other panel"));
    kill(panel, SIGKILL);
    waitpid(panel, nullptr, 0);
    EXPECT_TRUE(waitFor([&] { return retained("tessary/panel1/online") == "0\n"; }, "its last will"));
}

TEST_F(MqttPlant, broker_that_ends_is_lost_until_it_is_there_again)
{
    broker();
    plant({"{ data: A, topic: t }"}, "    lost: { disabled: yes }\n    status: A+9\n");
    ASSERT_TRUE(waitState(LinkState::Connected));
    endBroker();
    ASSERT_TRUE(waitState(LinkState::Lost));
    EXPECT_EQ(word(0), 0x4000);
    EXPECT_EQ(number(9), 2);
    broker();
    publish("t", "4", "-r");
    ASSERT_TRUE(waitFor([&] { return number(0) == 4; }, "the value"));
    EXPECT_EQ(word(0), 0);
    EXPECT_EQ(logged("broker: lost"), 1);
    EXPECT_EQ(logged("broker: connected"), 2);
}

TEST_F(MqttPlant, broker_that_hangs_is_lost_and_holds_up_nothing)
{
    broker();
    plant({"{ data: A, topic: t }"}, "    keepalive: 5 s\n");
    ASSERT_TRUE(waitState(LinkState::Connected));
    waits = 0;
    ticks = 0;
    signal(SIGSTOP);
    EXPECT_TRUE(waitState(LinkState::Lost));
    expectNoWaits();
    const auto begin = std::chrono::steady_clock::now();
    LinksExit();
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(4));
    signal(SIGCONT);
}

TEST_F(MqttPlant, password_stands_in_a_file_that_nobody_else_reads)
{
    run("cd " + project.root() + " && mosquitto_passwd -b -c passwords panel1 secret");
    settings("listener " + std::to_string(port) + " 127.0.0.1\npassword_file " + project.root() +
             "/passwords\n");
    access = "-u panel1 -P secret";
    broker();
    const std::string with = "    user: panel1\n    password-file: \"@DIR@/broker.secret\"\n";
    const std::string file = project.root() + "/broker.secret";
    writeFile(file, "secret\n");
    chmod(file.c_str(), 0644);
    plant({"{ data: A, topic: t }"}, with);
    ASSERT_TRUE(waitState(LinkState::Lost));
    EXPECT_EQ(logged("a file of password or certificates can not be used"), 1);

    chmod(file.c_str(), 0600);
    LinksInit(nullptr);
    EXPECT_TRUE(waitState(LinkState::Connected));

    writeFile(file, "wrong\n");
    LinksInit(nullptr);
    ASSERT_TRUE(waitState(LinkState::Lost));
    EXPECT_EQ(logged("user or password is not accepted"), 1);
    for (const std::string& line : project.messages())
        EXPECT_THAT(line, Not(HasSubstr("secret\n")));
}

TEST_F(MqttPlant, encrypted_connection_verifies_the_broker)
{
    makeCertificates("localhost");
    broker();
    const std::string address = "mqtts://localhost:" + std::to_string(port);
    plant({"{ data: A, topic: t }"}, "    ca-file: \"@DIR@/ca.pem\"\n", address);
    ASSERT_TRUE(waitState(LinkState::Connected));
    access = "--cafile " + project.root() + "/ca.pem -h localhost";
    tickFor(0.2);
    publish("t", "4");
    EXPECT_TRUE(waitFor([&] { return number(0) == 4; }, "the value"));

    plant({"{ data: A, topic: t }"}, "    ca-file: \"@DIR@/other.pem\"\n", address);
    ASSERT_TRUE(waitState(LinkState::Lost)) << "signed by somebody else";
    EXPECT_EQ(logged("the certificate can not be trusted"), 1);

    plant({"{ data: A, topic: t }"}, "", address);
    ASSERT_TRUE(waitState(LinkState::Lost)) << "unknown to this machine";
    EXPECT_EQ(logged("the certificate can not be trusted"), 2);
}

TEST_F(MqttPlant, certificate_of_another_host_is_not_trusted)
{
    makeCertificates("elsewhere.example");
    broker();
    plant({"{ data: A, topic: t }"}, "    ca-file: \"@DIR@/ca.pem\"\n",
          "mqtts://localhost:" + std::to_string(port));
    ASSERT_TRUE(waitState(LinkState::Lost));
    EXPECT_EQ(logged("the certificate can not be trusted"), 1);
}

TEST_F(MqttPlant, flood_ends_with_the_newest_value_and_holds_up_nothing)
{
    constexpr int COUNT = 50000;
    broker();
    plant({"{ data: A, topic: t }", "{ data: A+1, topic: t, json: /v }"});
    ASSERT_TRUE(waitState(LinkState::Connected));
    publish("t", "1");
    ASSERT_TRUE(waitFor([&] { return number(0) == 1; }, "the subscription"));
    {
        std::ofstream lines(project.root() + "/lines");
        for (int i = 1; i <= COUNT; ++i)
            lines << i << "\n";
    }
    waits = 0;
    ticks = 0;
    Program flood("/bin/sh", "sh",
                  {"-c", client("mosquitto_pub") + "-t t -q 1 -l <" + project.root() + "/lines"});
    EXPECT_TRUE(waitFor([&] { return number(0) == COUNT; }, "the last one"));
    EXPECT_EQ(state(), LinkState::Connected);
    expectNoWaits();
}
