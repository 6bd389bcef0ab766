#pragma once

#include "CoreMinimal.h"
#include "Misc/Attribute.h"

class FChildren;

// The base of every widget. The stand-in keeps a retained tree and paints nothing: a widget holds the
// arguments it was built with, and its children are reached through GetChildren, as in the engine.
class SLATECORE_API SWidget : public TSharedFromThis<SWidget>
{
public:
	virtual ~SWidget() {}

	virtual FChildren* GetChildren() = 0;

	// The class name as written at SNew.
	FString GetTypeAsString() const { return TypeOfWidget.ToString(); }

	// A disabled widget takes no input; bound, the state is asked again each time.
	bool IsEnabled() const { return !EnabledState.IsSet() || EnabledState.Get(); }
	void SetEnabled(const TAttribute<bool>& InEnabledState) { EnabledState = InEnabledState; }

	void SetDebugInfo(const ANSICHAR* InType, const ANSICHAR* InFile, int32 OnLine, size_t InAllocSize);

protected:
	SWidget() {}

private:
	FName TypeOfWidget;
	TAttribute<bool> EnabledState;
};
