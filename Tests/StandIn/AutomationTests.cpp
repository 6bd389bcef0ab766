#include "CoreMinimal.h"
#include "Misc/AutomationTest.h"
#include "SandboxTest.h"
#include "StandIn/Automation.h"

namespace
{
	// What each step of the spec below did, in order, across its cases.
	std::vector<std::string> Steps;
}

BEGIN_DEFINE_SPEC(FStepOrderSpec, TEXT("StandIn.Step Order"), EAutomationTestFlags::EditorContext | EAutomationTestFlags::EngineFilter)
END_DEFINE_SPEC(FStepOrderSpec)

void FStepOrderSpec::Define()
{
	BeforeEach([]() {
		Steps.push_back("outer before");
	});
	AfterEach([]() {
		Steps.push_back("outer after");
	});
	Describe(TEXT("inner"), [this]() {
		BeforeEach([this]() {
			Steps.push_back("inner before");
			TestTrue(TEXT("set up"), false);
		});
		AfterEach([]() {
			Steps.push_back("inner after");
		});
		It(TEXT("fails in its set-up"), []() {
			Steps.push_back("it");
		});
	});
	It(TEXT("passes"), [this]() {
		Steps.push_back("passing it");
		TestEqual(TEXT("text"), TEXT("Same"), TEXT("Same"));
	});
}

TEST_F(FSandboxTest, ASpecCaseRunsItsStepsOutsideInAndAfterAFailureOnlyTheAfterEachSteps)
{
	Steps.clear();
	const StandIn::FAutomationRunSummary Summary = StandIn::RunAutomationTests(TEXT("standin.steporder"));

	EXPECT_EQ(Summary.TestsRun, 2);
	EXPECT_EQ(Summary.TestsFailed, 1);
	EXPECT_EQ(Steps, (std::vector<std::string>{"outer before", "inner before", "inner after", "outer after", "outer before", "passing it", "outer after"}));
	EXPECT_EQ(LogLines(), (std::vector<std::string>{
							  "LogAutomationController: Display: Test Started. Name={fails in its set-up}",
							  "LogAutomationController: Error: Test Completed. Result={Failed} Name={fails in its set-up} Path={StandIn.Step Order.inner.fails in its set-up}",
							  "LogAutomationController: BeginEvents: StandIn.Step Order.inner.fails in its set-up",
							  "LogAutomationController: Error: Expected 'set up' to be true.",
							  "LogAutomationController: EndEvents: StandIn.Step Order.inner.fails in its set-up",
							  "LogAutomationController: Display: Test Started. Name={passes}",
							  "LogAutomationController: Display: Test Completed. Result={Passed} Name={passes} Path={StandIn.Step Order.passes}",
							  "LogAutomationController: BeginEvents: StandIn.Step Order.passes",
							  "LogAutomationController: EndEvents: StandIn.Step Order.passes",
						  }));
}

TEST_F(FSandboxTest, TextsCompareWithLetterCaseAsTCharStringsAndWithoutItAsFStrings)
{
	struct FProbe : FAutomationSpecBase
	{
		FProbe()
			: FAutomationSpecBase(TEXT("FProbe"), false) {}
		uint32 GetTestFlags() const override { return EAutomationTestFlags::EditorContext | EAutomationTestFlags::EngineFilter; }
		FString GetBeautifiedTestName() const override { return TEXT("StandIn.Probe"); }
		void Define() override
		{
			It(TEXT("compares"), [this]() {
				TestEqual(TEXT("as FStrings"), FString(TEXT("Create Mod")), FString(TEXT("create mod")));
				TestEqual(TEXT("as TCHAR strings"), TEXT("Create Mod"), TEXT("create mod"));
			});
		}
	} Probe;

	StandIn::RunAutomationTests(TEXT("StandIn.Probe"));

	EXPECT_EQ(LogLines().at(3), "LogAutomationController: Error: Expected 'as TCHAR strings' to be create mod, but it was Create Mod.");
	EXPECT_EQ(LogLines().at(4), "LogAutomationController: EndEvents: StandIn.Probe.compares");
}
