#include "Framework/Application/SlateApplication.h"
#include "Inspectors/Inspector.h"
#include "StandIn/Journal.h"
#include "StandIn/Records/WindowRecord.h"

FSlateApplication& FSlateApplication::Get()
{
	static FSlateApplication Instance;
	return Instance;
}

TSharedRef<SWindow> FSlateApplication::AddWindow(TSharedRef<SWindow> InSlateWindow, const bool bShowImmediately)
{
	StandIn::AppendToJournal(StandIn::RecordAddedWindow(InSlateWindow, bShowImmediately));
	return InSlateWindow;
}
