#pragma once

// For the stand-in's services: hands work to the background tasks of StandIn/BackgroundTasks.h. Not part of
// the control surface.
#include "MonitoredProcess.h"
#include <functional>
#include <memory>

namespace StandInBackgroundTasks
{
	// Monitored from now on until its process ends; launched already.
	void Monitor(std::shared_ptr<StandInProcesses::FMonitoredProcess> Process);

	// Run on the game thread at the next pass, after the monitors, as a task graph's game-thread task is.
	void DispatchToGameThread(std::function<void()> Work);

	// A world reset ends every task without telling anyone: running children are killed.
	void Forget();
}
