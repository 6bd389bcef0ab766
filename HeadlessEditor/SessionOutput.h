#pragma once

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

// A session's standard output. A distribution logs tens of thousands of lines, so they are gathered and
// written out together; but a person, or a program that reads the session, must see each line soon after
// it happened and before the editor waits for anything. So the lines are written out on a short timer,
// whenever the editor is about to wait, and at the end.
class FSessionOutput
{
public:
	FSessionOutput();
	// Writes out what is left.
	~FSessionOutput();
	FSessionOutput(const FSessionOutput&) = delete;
	FSessionOutput& operator=(const FSessionOutput&) = delete;

	void WriteLine(const std::string& Line);
	void Flush();

private:
	void FlushWhileLocked();

	std::mutex Mutex;
	std::condition_variable Stop;
	bool bStopping = false;
	std::string Pending;
	std::thread Timer;
};
