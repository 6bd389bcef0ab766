#pragma once

#include "CoreMinimal.h"

// A window of the operating system, under a Slate window.
class APPLICATIONCORE_API FGenericWindow
{
public:
	FGenericWindow();
	virtual ~FGenericWindow();

	// The platform's handle of the window (an HWND on Windows); null for a window without one.
	virtual void* GetOSWindowHandle() const;
};
