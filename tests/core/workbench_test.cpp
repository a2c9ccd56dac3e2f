#include "core/workbench.h"

#include <gtest/gtest.h>

#include "core/statements.h"
#include "platform/headless/headless_platform.h"

namespace wb {
namespace {

using Lines = std::vector<std::string>;

Lines* steps = nullptr;
bool refuse = false;

Wiring makeWiring() {
    Wiring made{};
    ScreenLife& life = made[static_cast<std::size_t>(ScreenId::Edid)];
    life.connect = [](Screen& screen) { steps->push_back("connect " + std::string(screen.name())); };
    life.load = [](Workbench& workbench) {
        steps->push_back(workbench.loaded(ScreenId::Edid) != nullptr ? "load, touched" : "load");
        workbench.frmHelp();
    };
    life.unload = [](Workbench&, bool& cancel) {
        steps->emplace_back("unload");
        cancel = refuse;
    };
    made[static_cast<std::size_t>(ScreenId::Document)].close = [](Workbench&) { steps->emplace_back("close"); };
    made[static_cast<std::size_t>(ScreenId::CeaExt)].load = [](Workbench&) { throw Failure(FailureKind::Overflow); };
    return made;
}

class WorkbenchTest : public testing::Test {
protected:
    WorkbenchTest() : workbench(platform.services(), wiring) {
        steps = &steps_;
        refuse = false;
        platform.onLine = [this](const std::string& line) { lines.push_back(line); };
        platform.onBox = [this](const std::string& text) { boxes.push_back(text); };
    }
    Lines inOrder() const {
        Lines names;
        for (const Screen* screen : workbench.loadedInOrder()) {
            names.emplace_back(screen->name());
        }
        return names;
    }
    Lines takeBoxes() { return std::exchange(boxes, {}); }

    static const Wiring wiring;
    Lines steps_;
    Lines lines;
    Lines boxes;
    platform::headless::HeadlessPlatform platform;
    Workbench workbench;
};

const Wiring WorkbenchTest::wiring = makeWiring();

[[noreturn]] void fail(FailureKind kind) {
    throw Failure(kind);
}

TEST_F(WorkbenchTest, ATouchMakesAScreenOnce) {
    EXPECT_EQ(workbench.loaded(ScreenId::Edid), nullptr);
    Screen& screen = workbench.touch(ScreenId::Edid);
    EXPECT_EQ(steps_, (Lines{"connect frmEDID", "load, touched"}));
    EXPECT_EQ(&workbench.frmEDID(), &screen);
    EXPECT_EQ(workbench.loaded(ScreenId::Edid), &screen);
    EXPECT_EQ(steps_.size(), 2U);
    EXPECT_EQ(inOrder(), (Lines{"frmEDID", "frmHelp"})) << "its load step has touched another";
}

TEST_F(WorkbenchTest, AScreenWhoseLoadStepFailsIsThere) {
    EXPECT_THROW(workbench.frmCEA_EXT(), Failure);
    EXPECT_NE(workbench.loaded(ScreenId::CeaExt), nullptr);
    EXPECT_NO_THROW(workbench.frmCEA_EXT());
}

TEST_F(WorkbenchTest, AScreenThatIsNoPartOfTheProgramHasNoSteps) {
    const std::unique_ptr<Screen> screen = workbench.makeScreen(ScreenId::Edid);
    EXPECT_EQ(screen->name(), "frmEDID");
    EXPECT_TRUE(steps_.empty());
    EXPECT_EQ(workbench.loaded(ScreenId::Edid), nullptr);
}

TEST_F(WorkbenchTest, TheUnloadStepMayRefuse) {
    Screen& screen = workbench.frmEDID();
    EXPECT_TRUE(workbench.runUnload(screen));
    refuse = true;
    EXPECT_FALSE(workbench.runUnload(screen));
    EXPECT_TRUE(workbench.runUnload(workbench.frmHelp())) << "it has none";
    EXPECT_EQ(workbench.loaded(ScreenId::Edid), &screen) << "the step takes nothing away";
}

TEST_F(WorkbenchTest, ACloseStepTakesThePlaceOfUnloading) {
    workbench.close(workbench.frmDocument());
    EXPECT_EQ(steps_, Lines{"close"});
    EXPECT_NE(workbench.loaded(ScreenId::Document), nullptr);
    workbench.close(workbench.frmEDID());
    EXPECT_EQ(steps_.back(), "unload");
    EXPECT_EQ(workbench.loaded(ScreenId::Edid), nullptr) << "it has no close step";
}

TEST_F(WorkbenchTest, ADiscardedScreenLivesUntilTheOutermostActionIsOver) {
    workbench.runAction([&] {
        FrmEdid& screen = workbench.frmEDID();
        screen.txtBrand.setText("brand");
        workbench.runAction([&] { workbench.discard(ScreenId::Edid); });
        EXPECT_EQ(workbench.loaded(ScreenId::Edid), nullptr);
        EXPECT_EQ(inOrder(), Lines{"frmHelp"});
        EXPECT_EQ(screen.txtBrand.text(), "brand") << "its handlers may still run";
        EXPECT_NE(&workbench.frmEDID(), &screen);
        EXPECT_EQ(workbench.frmEDID().txtBrand.text(), "");
    });
    EXPECT_EQ(inOrder(), (Lines{"frmHelp", "frmEDID"}));
    workbench.discard(ScreenId::About);
    EXPECT_EQ(inOrder().size(), 2U) << "what is not there is not missed";
}

TEST_F(WorkbenchTest, AnActionEndsWithItsFailure) {
    bool wentOn = false;
    workbench.runAction([&] {
        fail(FailureKind::DiskFull);
        wentOn = true;
    });
    EXPECT_FALSE(wentOn);
    EXPECT_EQ(lines, Lines{"[box] \"Disk full\" OK -> OK"});
}

TEST_F(WorkbenchTest, AsksWithTitleAndTellsWhetherTheAnswerIsYes) {
    platform.queueAnswer(platform::Answer::Yes);
    EXPECT_TRUE(workbench.askYesNo("Sure?", "Title"));
    EXPECT_FALSE(workbench.askYesNo("Sure?"));
    EXPECT_EQ(lines, (Lines{"[box] \"Sure?\" title=\"Title\" YesNo -> Yes", "[box] \"Sure?\" YesNo -> No"}));
}

TEST_F(WorkbenchTest, ATrapShowsTheFailureAndLeaves) {
    int value = 0;
    trapped(workbench, [&] {
        value = 1;
        fail(FailureKind::Overflow);
        value = 2;
    });
    EXPECT_EQ(value, 1) << "the state stands";
    EXPECT_EQ(takeBoxes(), Lines{"Overflow"});
    EXPECT_THROW(trapped(workbench, [] { throw std::bad_alloc(); }), std::bad_alloc);
}

TEST_F(WorkbenchTest, ATrappedFunctionGivesItsResultOrTheOther) {
    EXPECT_EQ(trappedOr(workbench, 7, [] { return 1; }), 1);
    EXPECT_TRUE(boxes.empty());
    EXPECT_EQ(trappedOr(workbench, 7, []() -> int { fail(FailureKind::TypeMismatch); }), 7);
    EXPECT_EQ(takeBoxes(), Lines{"Type mismatch"});
}

TEST_F(WorkbenchTest, SilenceShowsNothing) {
    silently([] { fail(FailureKind::Overflow); });
    EXPECT_TRUE(boxes.empty());
    EXPECT_THROW(silently([] { throw std::bad_alloc(); }), std::bad_alloc);
}

TEST_F(WorkbenchTest, AfterAFailedStatementTheNextOneMayRun) {
    const Statements statement(workbench, Statements::OnFailure::NextStatement);
    statement([] { fail(FailureKind::Overflow); });
    EXPECT_EQ(takeBoxes(), Lines{"Overflow"});
    EXPECT_EQ(statement.read([]() -> std::string { fail(FailureKind::InvalidCall); }), "");
    EXPECT_EQ(statement.read([]() -> int { fail(FailureKind::DivisionByZero); }), 0);
    EXPECT_EQ(takeBoxes(), (Lines{"Invalid procedure call or argument", "Division by zero"}));
    EXPECT_EQ(statement.read([] { return 5; }), 5);
}

TEST_F(WorkbenchTest, OrTheFailureIsThatOfTheProcedure) {
    const Statements statement(workbench, Statements::OnFailure::LeaveProcedure);
    EXPECT_THROW(statement([] { fail(FailureKind::Overflow); }), Failure);
    EXPECT_THROW(statement.read([]() -> int { fail(FailureKind::Overflow); }), Failure);
    EXPECT_TRUE(boxes.empty()) << "its trap shows it";
    EXPECT_EQ(statement.read([] { return 5; }), 5);
}

} // namespace
} // namespace wb
