#include "SessionOutput.h"
#include <cerrno>
#include <chrono>
#include <unistd.h>

namespace
{
	// Half the tenth of a second within which a line is to be out, so that a timer that wakes late still
	// keeps to it.
	constexpr std::chrono::milliseconds FlushInterval(50);
}

FSessionOutput::FSessionOutput()
	: Timer([this] {
		  std::unique_lock<std::mutex> Lock(Mutex);
		  while (!Stop.wait_for(Lock, FlushInterval, [this] {
			  return bStopping;
		  }))
		  {
			  FlushWhileLocked();
		  }
	  })
{
}

FSessionOutput::~FSessionOutput()
{
	{
		std::lock_guard<std::mutex> Lock(Mutex);
		bStopping = true;
	}
	Stop.notify_one();
	Timer.join();
	FlushWhileLocked();
}

void FSessionOutput::WriteLine(const std::string& Line)
{
	std::lock_guard<std::mutex> Lock(Mutex);
	Pending += Line;
	Pending += '\n';
}

void FSessionOutput::Flush()
{
	std::lock_guard<std::mutex> Lock(Mutex);
	FlushWhileLocked();
}

// The lock is held through the write, so that lines leave in the order they came.
void FSessionOutput::FlushWhileLocked()
{
	size_t Written = 0;
	while (Written < Pending.size())
	{
		const ssize_t Count = write(STDOUT_FILENO, Pending.data() + Written, Pending.size() - Written);
		if (Count < 0 && errno == EINTR)
		{
			continue;
		}
		if (Count <= 0)
		{
			// Nobody reads any more; what is left is dropped rather than held.
			break;
		}
		Written += (size_t)Count;
	}
	Pending.clear();
}
