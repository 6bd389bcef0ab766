#include "GenericPlatform/GenericWindow.h"
#include "Interfaces/IMainFrameModule.h"
#include "Widgets/SWindow.h"

namespace
{
	// The Windows window under the main frame; its handle stands for an HWND and is never dereferenced.
	class FStandInNativeWindow final : public FGenericWindow
	{
	public:
		virtual void* GetOSWindowHandle() const override { return const_cast<FStandInNativeWindow*>(this); }
	};

	// The editor is up in the stand-in's world, so the main frame's window exists and is shown from the start.
	class FStandInMainFrameModule final : public IMainFrameModule
	{
	public:
		virtual void StartupModule() override
		{
			ParentWindow = SNew(SWindow).Title(FText::FromString(TEXT("Moravane - Unreal Editor")));
			ParentWindow->SetNativeWindow(MakeShared<FStandInNativeWindow>());
		}

		virtual TSharedPtr<SWindow> GetParentWindow() const override { return ParentWindow; }

	private:
		TSharedPtr<SWindow> ParentWindow;
	};
}

namespace StandInModules
{
	IModuleInterface* InitializeMainFrameModule()
	{
		return new FStandInMainFrameModule();
	}
}
