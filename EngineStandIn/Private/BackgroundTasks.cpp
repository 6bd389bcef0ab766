#include "StandIn/BackgroundTasks.h"
#include "StandInBackgroundTasks.h"
#include <algorithm>
#include <poll.h>
#include <unistd.h>
#include <vector>

namespace
{
	struct FBackgroundState
	{
		std::vector<std::shared_ptr<StandInProcesses::FMonitoredProcess>> Processes;
		std::vector<std::function<void()>> GameThreadWork;
	};

	FBackgroundState& State()
	{
		static FBackgroundState Instance;
		return Instance;
	}

	// Long enough not to spin, short enough that a process's end is noticed at once to a person.
	const int MaximumWaitMilliseconds = 20;
}

namespace StandInBackgroundTasks
{
	void Monitor(std::shared_ptr<StandInProcesses::FMonitoredProcess> Process)
	{
		State().Processes.push_back(std::move(Process));
	}

	void DispatchToGameThread(std::function<void()> Work)
	{
		State().GameThreadWork.push_back(std::move(Work));
	}

	void Forget()
	{
		State().Processes.clear();
		State().GameThreadWork.clear();
	}
}

namespace StandIn
{
	bool HasBackgroundTasks()
	{
		return !State().Processes.empty() || !State().GameThreadWork.empty();
	}

	void TickBackgroundTasks()
	{
		FBackgroundState& Background = State();
		// A completion may start another task; it is monitored from the next pass on.
		std::vector<std::shared_ptr<StandInProcesses::FMonitoredProcess>> Processes = Background.Processes;
		for (const std::shared_ptr<StandInProcesses::FMonitoredProcess>& Process : Processes)
		{
			if (!Process->Tick())
			{
				Background.Processes.erase(std::find(Background.Processes.begin(), Background.Processes.end(), Process));
			}
		}
		std::vector<std::function<void()>> Work;
		Work.swap(Background.GameThreadWork);
		for (const std::function<void()>& Item : Work)
		{
			Item();
		}
	}

	void WaitForBackgroundTasks()
	{
		while (HasBackgroundTasks())
		{
			std::vector<pollfd> Outputs;
			for (const std::shared_ptr<StandInProcesses::FMonitoredProcess>& Process : State().Processes)
			{
				Outputs.push_back(pollfd{Process->OutputDescriptor(), POLLIN, 0});
			}
			bool bOutputClosed = false;
			if (!Outputs.empty() && State().GameThreadWork.empty() && poll(Outputs.data(), Outputs.size(), MaximumWaitMilliseconds) > 0)
			{
				for (const pollfd& Output : Outputs)
				{
					bOutputClosed = bOutputClosed || (Output.revents & POLLHUP) != 0;
				}
			}
			TickBackgroundTasks();
			// A process that closed its output but runs on would wake every poll at once.
			if (bOutputClosed && HasBackgroundTasks())
			{
				usleep(MaximumWaitMilliseconds * 1000 / 4);
			}
		}
	}
}
