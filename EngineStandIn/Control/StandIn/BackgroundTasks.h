#pragma once

// The editor's time passing: what runs beside the game thread (the monitors of automation tasks' processes)
// and what they hand back to it. The engine does this on threads of its own; the stand-in does it when a
// test or the headless editor lets time pass, so every line comes in the order the engine would deliver it.
// The module never includes this header.

namespace StandIn
{
	// True while a task's process runs or the game thread still has something of a task to do.
	bool HasBackgroundTasks();

	// One pass: each task's monitor reads what its process printed, hands on every complete line and notices
	// its end (calling the task's completion); then the game thread runs what was dispatched to it.
	void TickBackgroundTasks();

	// Passes until nothing is left to do, waking as output arrives: a session waits so before it shuts the
	// module down, so a task started in a session ends in that session.
	void WaitForBackgroundTasks();
}
