#include "AutomationCommand.h"
#include "StandIn/Automation.h"
#include "StandIn/ShownText.h"
#include "StandIn/World.h"
#include <iostream>

int RunAutomation(const FEditorCommandLine& CommandLine)
{
	const StandIn::FAutomationRunSummary Summary = StandIn::RunAutomationTests(StandIn::FromUtf8(CommandLine.Filter));
	if (Summary.TestsRun == 0)
	{
		std::cout.flush();
		std::cerr << "ugc-editor: no automation test's path contains \"" << StandIn::ShownValue(CommandLine.Filter) << "\"; nothing was run." << std::endl;
		return 2;
	}
	return Summary.TestsFailed == 0 ? 0 : 1;
}
