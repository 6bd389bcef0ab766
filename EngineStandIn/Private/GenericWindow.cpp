#include "GenericPlatform/GenericWindow.h"

FGenericWindow::FGenericWindow() {}

FGenericWindow::~FGenericWindow() {}

void* FGenericWindow::GetOSWindowHandle() const
{
	return nullptr;
}
