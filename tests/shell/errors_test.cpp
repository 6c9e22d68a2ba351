#include "shell/errors.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

TEST(Steps, InTaggedModeAFailedStepIsReportedAndTheNextRuns)
{
    ErrorRecord errors;
    int ran = 0;
    const Steps step(errors, "MODULE SaveOptions");
    step([] { throw RuntimeError(ErrorCode::DiskFull, "Disk full", 28); });
    step([&] { ++ran; });
    EXPECT_EQ(ran, 1);
    EXPECT_EQ(errors.ErrorProcedure, "MODULE SaveOptions");
    EXPECT_EQ(errors.ErrorNumber, 61.0F);
    EXPECT_EQ(errors.ErrorDescription, "Disk full");
    EXPECT_EQ(errors.ErrorLastDllError, "28");
}

TEST(Steps, InResumeNextModeAFailedStepLeavesNoTrace)
{
    int ran = 0;
    const Steps step;
    step([] { throw RuntimeError(ErrorCode::DiskFull, "Disk full"); });
    step([&] { ++ran; });
    EXPECT_EQ(ran, 1);
}

TEST(Steps, EachStepSaysWhetherItSucceededAndTheLastFailureKeepsItsReason)
{
    ErrorRecord errors;
    for (const Steps& step : {Steps(), Steps(errors, "ED_AutoSaveFile")}) {
        EXPECT_EQ(step.whyNot(), "");
        EXPECT_FALSE(step([] { throw RuntimeError(ErrorCode::DiskFull, "Disk full"); }));
        EXPECT_TRUE(step([] {}));
        EXPECT_EQ(step.whyNot(), "Disk full");
        EXPECT_FALSE(step([] { throw std::logic_error("odd"); }));
        EXPECT_EQ(step.whyNot(), "odd");
    }
}

TEST(Steps, AFailureReportedByAnotherProcedureIsNotTheReasonOfThisOne)
{
    ErrorRecord errors;
    const Steps step(errors, "ED_AutoSaveFile");
    EXPECT_FALSE(step([] { throw RuntimeError(ErrorCode::DiskFull, "Disk full"); }));
    Steps(errors, "ED_noteSaved")([] { throw std::logic_error("odd"); });
    EXPECT_EQ(errors.ErrorDescription, "odd");
    EXPECT_EQ(step.whyNot(), "Disk full");
}

TEST(ErrorRecord, AnyExceptionIsReported)
{
    ErrorRecord errors;
    errors.report("ED_Form_Load", std::logic_error("odd"));
    EXPECT_EQ(errors.ErrorDescription, "odd");
    EXPECT_EQ(errors.ErrorLastDllError, "0");
}

TEST(ReportError, ClearsTheExitFlagAndReturnsWhenNobodySetsIt)
{
    ErrorRecord errors;
    bool exited = false;
    errors.exitInEmergency = [&] { exited = true; };
    errors.ExitRequestedByError = 1; // left over: doesn't count
    errors.ReportError();
    EXPECT_FALSE(exited);
    EXPECT_EQ(errors.ExitRequestedByError, 0);
}

TEST(ReportError, AFailureOfItsOwnComesToNothing)
{
    ErrorRecord errors;
    errors.reportWindow = [&] {
        errors.ExitRequestedByError = 1;
        throw std::runtime_error("no window");
    };
    errors.exitInEmergency = [] { throw std::runtime_error("no exit"); };
    EXPECT_NO_THROW(errors.report("MODULE Test", std::runtime_error("x")));
    EXPECT_EQ(errors.ErrorDescription, "x");
}

TEST(ReportError, ExitsWhenTheReportWindowAsksForIt)
{
    ErrorRecord errors;
    bool exited = false;
    errors.exitInEmergency = [&] { exited = true; };
    errors.reportWindow = [&] { errors.ExitRequestedByError = 1; };
    errors.ReportError();
    EXPECT_TRUE(exited);
}

TEST(ErrorRecord, AFailureOfTheLanguageHasNumberFiveAlsoAfterAnother)
{
    ErrorRecord errors;
    int asked = 0;
    errors.reportWindow = [&asked] { ++asked; };
    errors.report("ED_Form_Load", RuntimeError(ErrorCode::DiskFull, "Disk full", 28));
    EXPECT_EQ(errors.ErrorNumber, static_cast<float>(ErrorCode::DiskFull));
    EXPECT_EQ(errors.ErrorLastDllError, "28");
    errors.report("ED_Form_Load", std::logic_error("odd"));
    EXPECT_EQ(errors.ErrorNumber, 5.0F);
    EXPECT_EQ(errors.ErrorLastDllError, "0");
    EXPECT_EQ(asked, 2);
}

} // namespace
} // namespace tarvex
