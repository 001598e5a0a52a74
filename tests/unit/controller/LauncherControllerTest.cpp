#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <utility>
#include <vector>

#include "controller/LauncherController.h"
#include "tests/unit/controller/ControllerFixture.h"

namespace launcher {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto invalidText = "Enter valid Vorx location to enable launch button";
constexpr auto readyText = "Press launch button to start remote control";
constexpr auto runningText = "Press launch button to re-start remote control";
constexpr auto lookupText = "Looking up IP Address for the Vorx";

class UpdateStateTest : public ControllerFixture {};
class LaunchButtonTest : public ControllerFixture {};
class DiscoveryTest : public ControllerFixture {};
class ViewDidLoadTest : public ControllerFixture {};

struct Evaluation {
  const char* location;
  const char* ip;
  bool viewerRuns;
  bool enabled;
  const char* title;
  AddressMark mark;
  const char* info;
};

TEST_F(UpdateStateTest, ShowsWhatTheFieldsAndTheProcessTableGive) {
  constexpr auto good = "https://server.example";
  constexpr auto kept = "as laid out";
  constexpr auto empty = AddressMark::empty;
  constexpr auto valid = AddressMark::valid;
  constexpr auto invalid = AddressMark::invalid;
  const Evaluation table[] = {
      {"", "", false, false, kept, empty, invalidText},
      {"", "", true, false, kept, empty, invalidText},
      {good, "", false, true, "Launch", empty, readyText},
      {good, "", true, true, "Re-Launch", empty, runningText},
      {good, "10.0.0.5", false, true, "Launch", valid, readyText},
      {good, "10.0.0.5", true, true, "Re-Launch", valid, runningText},
      {good, "fe80::1", false, true, "Launch", valid, readyText},
      {good, "letters", false, false, kept, invalid, invalidText},
      {good, " ", false, false, kept, invalid, invalidText},
      {good, "10.0.0", true, false, kept, invalid, invalidText},
      {"nonsense", "10.0.0.5", false, false, kept, valid, invalidText},
      {"nonsense", "letters", false, false, kept, invalid, invalidText},
      {"https://server.example ", "", false, false, kept, empty, invalidText},
      {"see https://server.example", "", false, false, kept, empty, invalidText},
      {"https://one.example https://two.example", "", false, false, kept, empty, invalidText},
      {"ftp://server.example", "", false, false, kept, empty, invalidText},
  };
  for (const auto& [location, ip, viewerRuns, enabled, title, mark, info] : table) {
    SCOPED_TRACE(std::string("location <") + location + "> ip <" + ip + ">" +
                 (viewerRuns ? " viewer runs" : ""));
    window.buttonTitle = kept;
    fill(location, ip);
    letViewerRun(viewerRuns);
    controller.updateState();
    EXPECT_EQ(window.buttonEnabled, enabled);
    EXPECT_EQ(window.buttonTitle, title);
    EXPECT_EQ(window.ipMark, mark);
    EXPECT_EQ(window.info, info);
  }
}

TEST_F(UpdateStateTest, LeavesTheTitleOfADisabledButtonAlone) {
  fill("https://server.example", "");
  letViewerRun(true);
  controller.updateState();
  ASSERT_EQ(window.buttonTitle, "Re-Launch");

  fill("", "");
  controller.updateState();
  EXPECT_FALSE(window.buttonEnabled);
  EXPECT_EQ(window.buttonTitle, "Re-Launch");
}

TEST_F(UpdateStateTest, ShowsInOrder) {
  fill("https://server.example", "10.0.0.5");
  controller.updateState();
  EXPECT_THAT(log->events(), ElementsAre("mark ip", "enable button", "ask process table",
                                         "title Launch", std::string("info ") + readyText));

  log->clear();
  fill("", "10.0.0.5");
  controller.updateState();
  EXPECT_THAT(log->events(),
              ElementsAre("mark ip", "disable button", std::string("info ") + invalidText));
}

TEST_F(UpdateStateTest, AsksTheProcessTableOnlyWhenReady) {
  fill("nonsense", "10.0.0.5");
  controller.updateState();
  fill("https://server.example", "letters");
  controller.updateState();
  EXPECT_EQ(processes.searches, 0);

  fill("https://server.example", "");
  controller.updateState();
  EXPECT_GT(processes.searches, 0);
}

TEST_F(UpdateStateTest, EveryIdentifierMeansThatTheViewerRuns) {
  fill("https://server.example", "");
  for (const ProcessId viewer : {0, 1, 4'194'304}) {
    processes.processes = {processRecord(viewer, "vexlink")};
    window.buttonTitle.clear();
    controller.updateState();
    EXPECT_EQ(window.buttonTitle, "Re-Launch") << viewer;
  }
}

TEST_F(UpdateStateTest, TakesAFailedQueryForAViewerThatDoesNotRun) {
  fill("https://server.example", "");
  letViewerRun(true);
  processes.probes = {{.result = -1, .error = EPERM}};
  controller.updateState();
  EXPECT_EQ(window.buttonTitle, "Launch");
  EXPECT_EQ(window.info, readyText);
}

TEST_F(UpdateStateTest, TestsTheLocationEvenWhenTheAddressIsWrong) {
  fill("https://server.example", "letters");
  controller.updateState();
  EXPECT_EQ(links.searches, 1);
}

TEST_F(UpdateStateTest, DoesNotRecordTheViewer) {
  fill("https://server.example", "");
  letViewerRun(true);
  controller.updateState();
  EXPECT_EQ(launchControl.runningAppPID(), noProcess);
}

TEST_F(UpdateStateTest, ShowsTranslationsWhereThereAreAny) {
  translations.table = {{readyText, "Bereit"}, {"Launch", "Starten"}};
  fill("https://server.example", "");
  controller.updateState();
  EXPECT_EQ(window.info, "Bereit");
  EXPECT_EQ(window.buttonTitle, "Starten");
}

TEST_F(UpdateStateTest, EveryStateHasItsText) {
  EXPECT_EQ(controller.launchStateString(LaunchState::noURL), invalidText);
  EXPECT_EQ(controller.launchStateString(LaunchState::runningReadyToRun), runningText);
  EXPECT_EQ(controller.launchStateString(LaunchState::readyToRun), readyText);
  EXPECT_EQ(controller.launchStateString(LaunchState::gettingIPAddress), lookupText);
}

TEST_F(ViewDidLoadTest, QueuesTheSearchAndRecordsTheViewer) {
  letViewerRun(true);
  controller.viewDidLoad();
  EXPECT_EQ(background.size(), 1U);
  EXPECT_EQ(launchControl.runningAppPID(), viewerPid);
}

TEST_F(ViewDidLoadTest, QueuesTheSearchThenAsksTheProcessTableAndShowsNothing) {
  fill("https://server.example", "10.0.0.5");
  controller.viewDidLoad();
  EXPECT_THAT(log->events(), ElementsAre("queue in background", "ask process table"));
}

TEST_F(ViewDidLoadTest, RecordsThatNoViewerRuns) {
  launchControl.setRunningAppPID(7);
  controller.viewDidLoad();
  EXPECT_EQ(launchControl.runningAppPID(), noProcess);
}

TEST_F(LaunchButtonTest, LocksTheFormWhileLookingUp) {
  fill("https://server.example", "10.0.0.5");
  controller.launchButtonClick();
  EXPECT_THAT(log->events(), ElementsAre("disable button", "disable location",
                                         std::string("info ") + lookupText, "queue in background"));
  EXPECT_THAT(starter.starts, IsEmpty());
}

TEST_F(LaunchButtonTest, StartsTheViewerAndEvaluates) {
  fill("https://server.example", "10.0.0.5");
  controller.launchButtonClick();
  background.runAll();
  EXPECT_FALSE(window.locationEnabled);

  log->clear();
  mainQueue.runAll();
  EXPECT_THAT(log->events(),
              ElementsAre("enable location", "mark ip", "enable button", "ask process table",
                          "title Launch", std::string("info ") + readyText));
}

struct Press {
  const char* location;
  const char* ip;
  const char* expectedHost;
  const char* expectedIp;
  bool resolved;
};

TEST_F(LaunchButtonTest, HandsHostAndAddressToTheViewer) {
  const Press table[] = {
      {"server.example", "", "server.example", "192.0.2.7", true},
      {"https://server.example", "", "server.example", "192.0.2.7", true},
      {"http://server.example:444/path", "", "server.example", "192.0.2.7", true},
      {"https://user@server.example/a?b#c", "", "server.example", "192.0.2.7", true},
      {"https://server.example", "10.0.0.5", "server.example", "10.0.0.5", false},
      {"https://server.example", "fe80::1", "server.example", "fe80::1", false},
      {"https://server.example", "10.0.0", "server.example", "192.0.2.7", true},
      {"https://server.example", " 10.0.0.5", "server.example", "192.0.2.7", true},
  };
  letHostsResolve();
  for (const auto& [location, ip, expectedHost, expectedIp, resolved] : table) {
    SCOPED_TRACE(std::string("location <") + location + "> ip <" + ip + ">");
    starter.starts.clear();
    resolver.asked.clear();
    fill(location, ip);
    controller.launchButtonClick();
    runAllWork();
    ASSERT_EQ(starter.starts.size(), 1U);
    EXPECT_EQ(starter.starts[0].path, bundle.resources.value() + "/bin/vexlink");
    EXPECT_THAT(starter.starts[0].arguments,
                ElementsAre("-l", expectedHost, "-i", expectedIp, "-r", bundle.resources.value()));
    EXPECT_EQ(!resolver.asked.empty(), resolved);
  }
}

TEST_F(LaunchButtonTest, ALocationWithoutASchemeMeansHttps) {
  const std::pair<const char*, const char*> table[] = {
      {"server.example", "https://server.example"},
      {"server.example:/", "https://server.example:/"},
      {"server.example//p", "https://server.example//p"},
      {" server.example", "https:// server.example"},
      {"http://server.example", "http://server.example"},
      {"ftp://server.example", "ftp://server.example"},
      {"://server.example", "://server.example"},
      {"server.example ://p", "server.example ://p"},
      {"server.example/?to=http://p", "server.example/?to=http://p"},
  };
  for (const auto& [typed, searched] : table) {
    fill(typed, "10.0.0.5");
    controller.launchButtonClick();
    EXPECT_EQ(links.lastText, searched) << typed;
  }
}

// The check that finds the host is looser than the one that gates the button.
TEST_F(LaunchButtonTest, TakesTheFirstLinkOfALocationWithOtherText) {
  fill("see https://one.example/a https://two.example", "10.0.0.5");
  controller.launchButtonClick();
  runAllWork();
  ASSERT_EQ(starter.starts.size(), 1U);
  EXPECT_EQ(starter.starts[0].arguments[1], "one.example");
  EXPECT_FALSE(window.buttonEnabled);
}

TEST_F(LaunchButtonTest, LeavesTheTypedTextsAlone) {
  letHostsResolve();
  fill("server.example", "");
  controller.launchButtonClick();
  runAllWork();
  EXPECT_EQ(window.location, "server.example");
  EXPECT_EQ(window.ip, "");
}

TEST_F(LaunchButtonTest, IgnoresALocationWithoutAHost) {
  for (const auto* location : {"", " ", "ftp://server.example", "https:///path", "https://",
                               "http://?host", "mailto://", "://server.example"}) {
    SCOPED_TRACE(location);
    fill(location, "10.0.0.5");
    controller.launchButtonClick();
    EXPECT_THAT(log->events(), IsEmpty());
  }
}

TEST_F(LaunchButtonTest, CarriesItsOwnCopiesOfTheTexts) {
  fill("https://server.example", "10.0.0.5");
  controller.launchButtonClick();
  fill("https://other.example", "10.0.0.6");
  background.runAll();
  ASSERT_EQ(starter.starts.size(), 1U);
  EXPECT_THAT(starter.starts[0].arguments, ElementsAre("-l", "server.example", "-i", "10.0.0.5",
                                                       "-r", bundle.resources.value()));
}

TEST_F(LaunchButtonTest, ShowsAnAlertWhereTheHostIsUnknown) {
  fill("https://nohost.invalid", "");
  window.buttonTitle = "Re-Launch";
  controller.launchButtonClick();
  background.runAll();
  EXPECT_THAT(window.alerts, IsEmpty());

  log->clear();
  window.whileAlertIsUp = [this] { EXPECT_FALSE(window.locationEnabled); };
  mainQueue.runAll();
  EXPECT_THAT(log->events(), ElementsAre(std::string("info ") + invalidText,
                                         "alert Failed to look up IP address for 'nohost.invalid'",
                                         "enable location"));
  ASSERT_EQ(window.alerts.size(), 1U);
  EXPECT_EQ(window.alerts[0].informative, "Please check you have entered the correct address");
  EXPECT_EQ(window.alerts[0].button, "OK");
  EXPECT_FALSE(window.buttonEnabled);
  EXPECT_EQ(window.buttonTitle, "Re-Launch");
  EXPECT_THAT(starter.starts, IsEmpty());
}

TEST_F(LaunchButtonTest, AnEditAfterAFailureBringsTheButtonBack) {
  fill("https://nohost.invalid", "");
  controller.launchButtonClick();
  runAllWork();
  ASSERT_FALSE(window.buttonEnabled);
  controller.updateState();
  EXPECT_TRUE(window.buttonEnabled);
}

TEST_F(LaunchButtonTest, TranslatesTheAlert) {
  translations.table = {{"Failed to look up IP address for '%@'", "Keine Adresse für „%@“"},
                        {"Please check you have entered the correct address", "Bitte prüfen"},
                        {"OK", "Gut"}};
  fill("https://nohost.invalid", "");
  controller.launchButtonClick();
  runAllWork();
  ASSERT_EQ(window.alerts.size(), 1U);
  EXPECT_EQ(window.alerts[0].message, "Keine Adresse für „nohost.invalid“");
  EXPECT_EQ(window.alerts[0].informative, "Bitte prüfen");
  EXPECT_EQ(window.alerts[0].button, "Gut");
}

TEST_F(LaunchButtonTest, UnlocksTheFormIfTheViewerCannotBeStarted) {
  starter.refuses = true;
  fill("https://server.example", "10.0.0.5");
  controller.launchButtonClick();
  runAllWork();
  EXPECT_TRUE(window.locationEnabled);
  EXPECT_TRUE(window.buttonEnabled);
  EXPECT_EQ(window.info, readyText);
}

// An edit of the IP field during a lookup brings the button back; nothing guards against a second
// launch started that way, and nothing should.
TEST_F(LaunchButtonTest, ASecondFlowMayStartDuringTheFirst) {
  fill("https://server.example", "");
  controller.launchButtonClick();
  fill("https://server.example", "10.0.0.5");
  controller.updateState();
  EXPECT_TRUE(window.buttonEnabled);
  controller.launchButtonClick();
  EXPECT_EQ(background.size(), 2U);

  letHostsResolve();
  runAllWork();
  EXPECT_EQ(starter.starts.size(), 2U);
}

TEST_F(LaunchButtonTest, EveryItemKeepsTheControllerAlive) {
  fill("https://server.example", "10.0.0.5");
  controller.launchButtonClick();
  EXPECT_EQ(window.held(), 1);
  background.runAll();
  EXPECT_EQ(window.held(), 1);
  mainQueue.runAll();
  EXPECT_EQ(window.held(), 0);

  fill("https://nohost.invalid", "");
  controller.launchButtonClick();
  EXPECT_EQ(window.held(), 1);
  background.runAll();
  EXPECT_EQ(window.held(), 1);
  mainQueue.runAll();
  EXPECT_EQ(window.held(), 0);
}

TEST_F(LaunchButtonTest, GetIpAddressPrefersTheTypedOne) {
  letHostsResolve();
  EXPECT_EQ(controller.getIpAddress("server.example", "10.0.0.5"), "10.0.0.5");
  EXPECT_THAT(resolver.asked, IsEmpty());
  EXPECT_EQ(controller.getIpAddress("server.example", ""), "192.0.2.7");
  EXPECT_EQ(controller.getIpAddress("server.example", "letters"), "192.0.2.7");
  resolver.answer.reset();
  EXPECT_EQ(controller.getIpAddress("nohost.invalid", ""), std::nullopt);
}

TEST_F(DiscoveryTest, FillsTheLocationAndEvaluates) {
  attachImageFrom("https://server.example/dir/a.dmg");
  controller.searchDMGs();
  EXPECT_EQ(background.size(), 1U);
  background.runAll();
  EXPECT_THAT(log->events(), ElementsAre("queue in background", "sleep", "queue on main thread"));

  mainQueue.runAll();
  EXPECT_EQ(window.location, "https://server.example/dir/");
  EXPECT_TRUE(window.buttonEnabled);
}

TEST_F(DiscoveryTest, LeavesTheFormAloneWhereNothingIsFound) {
  controller.searchDMGs();
  background.runAll();
  EXPECT_THAT(log->events(), ElementsAre("queue in background", "sleep"));
}

TEST_F(DiscoveryTest, KeepsTheControllerAlive) {
  attachImageFrom("https://server.example/dir/a.dmg");
  controller.searchDMGs();
  EXPECT_EQ(window.held(), 1);
  background.runAll();
  EXPECT_EQ(window.held(), 1);
  mainQueue.runAll();
  EXPECT_EQ(window.held(), 0);
}

TEST_F(DiscoveryTest, ReplacesWhatWasTypedMeanwhile) {
  controller.updateSourceLocation("https://found.example/");
  fill("https://typed.example", "");
  mainQueue.runAll();
  EXPECT_EQ(window.location, "https://found.example/");
}

TEST_F(DiscoveryTest, WritesALocationAsItCame) {
  for (const char* location : {" https://found.example/ ", "\thttps://found.example/\n", " ", "",
                               "HTTPS://Found.Example/%7e?a=b#c", "\u00e9 e\u0301"}) {
    fill("https://typed.example", "");
    controller.updateSourceLocation(location);
    mainQueue.runAll();
    EXPECT_EQ(window.location, location);
  }
}

TEST_F(DiscoveryTest, LocationsArriveInPostingOrder) {
  controller.updateSourceLocation("https://one.example/");
  controller.updateSourceLocation("two");
  EXPECT_EQ(mainQueue.size(), 2U);

  mainQueue.runNext();
  EXPECT_EQ(window.location, "https://one.example/");
  EXPECT_EQ(window.info, readyText);
  mainQueue.runNext();
  EXPECT_EQ(window.location, "two");
  EXPECT_EQ(window.info, invalidText);
}

}  // namespace
}  // namespace launcher
