#pragma once

// The one control surface of the stand-in engine: tests and the headless editor set up the Windows world
// here, read what the engine only shows (log lines, message boxes, Win32 calls, windows) and act as the
// user on widgets. The module never includes this header.
#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Input/Reply.h"
#include "Layout/Margin.h"
#include "Misc/MessageDialog.h"
#include "Styling/SlateColor.h"
#include "Styling/SlateTypes.h"
#include "Types/SlateEnums.h"
#include "Widgets/SWidget.h"
#include "Widgets/SWindow.h"
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace StandIn
{
	struct FWorld
	{
		// Host folder that holds the drives: "C:/x" is the host file "<DriveRoot>/C/x".
		std::string DriveRoot;
		// As GetCurrentDirectoryW gave it at start-up, plus '/'.
		FString LaunchDir = TEXT("C:/Work/");
		// The engine binaries folder, which is also the editor's current directory.
		FString BaseDir = TEXT("C:/Work/Engine/Binaries/Win64/");
		FString ProjectFilePath = TEXT("C:/Work/Moravane/Moravane.uproject");
	};

	// Starts a fresh world: drive C: present, records cleared, physical layer on top of the platform-file
	// chain, and UGC_DRIVE_ROOT and PATH (with the stand-in's cmd.exe first) set for child programs.
	void ResetWorld(const FWorld& World);
	const FWorld& GetWorld();

	// Host path of a Windows path ("C:/Work/x" -> "<DriveRoot>/C/Work/x"); relative paths are taken from
	// the editor's current directory.
	std::string HostPath(const FString& WindowsPath);

	struct FLogRecord
	{
		FString Category;
		ELogVerbosity::Type Verbosity;
		FString Message;
		// The line as the editor's output log shows it: "LogTemp: Warning: text", "LogTemp: text".
		std::string OutputLine() const;
	};
	const std::vector<FLogRecord>& LogRecords();

	struct FMessageBoxRecord
	{
		EAppMsgType::Type Type;
		FText Message;
	};
	const std::vector<FMessageBoxRecord>& MessageBoxes();

	struct FFileAttributesRecord
	{
		FString Path;
		uint32 Attributes;
	};
	const std::vector<FFileAttributesRecord>& FileAttributeCalls();

	// Called as each log line or message box happens, after it is recorded.
	void SetLogListener(std::function<void(const FLogRecord&)> Listener);
	void SetMessageBoxListener(std::function<void(const FMessageBoxRecord&)> Listener);

	std::string ToUtf8(const FString& Text);
	FString FromUtf8(const std::string& Text);

	// ---- Slate ----------------------------------------------------------------------------------------
	// Widgets are a retained tree, read through ChildSlots and Paint. The input functions act as the
	// user would, and stop the program when the widget is not of the kind the input is meant for.

	// A window as it was handed to FSlateApplication::AddWindow. Windows are kept, in order, until the
	// world is reset.
	struct FWindowRecord
	{
		TSharedRef<SWindow> Window;
		FText Title;
		FVector2D ClientSize;
		bool bSupportsMaximize;
		bool bSupportsMinimize;
		bool bShowImmediately;
		TSharedRef<SWidget> Content;
	};
	const std::vector<FWindowRecord>& AddedWindows();

	// The class as written at SNew: "SButton", "SComboBox<TSharedPtr<FString>>".
	std::string WidgetType(const TSharedRef<SWidget>& Widget);

	// A child with the slot that holds it, in the widget's order. Fill is a box slot's stretch
	// coefficient (0 when it sizes to its content, 1 by default, -1 outside boxes); Column and Row are a
	// grid slot's (-1 elsewhere).
	struct FChildSlot
	{
		TSharedRef<SWidget> Widget;
		FMargin Padding;
		float Fill;
		int32 Column;
		int32 Row;
	};
	std::vector<FChildSlot> ChildSlots(const TSharedRef<SWidget>& Widget);

	// A widget as a paint shows it: bound attributes are asked again. Text is a button's caption, an
	// editable text's contents (what the user typed, unless the text is bound) or a window's title. An
	// unset font or colour is the widget style's.
	struct FPaintedWidget
	{
		FText Text;
		bool bTextIsBound = false;
		FText HintText;
		std::optional<FSlateFontInfo> Font;
		std::optional<FSlateColor> ColorAndOpacity;
		bool bIsReadOnly = false;
		const FButtonStyle* ButtonStyle = nullptr;
		ECheckBoxState CheckState = ECheckBoxState::Unchecked;
	};
	FPaintedWidget Paint(const TSharedRef<SWidget>& Widget);
	// The text the widget shows, or else the first non-empty text below it (depth first).
	FText ShownText(const TSharedRef<SWidget>& Widget);

	FReply ClickButton(const TSharedRef<SWidget>& Button);
	// A click on the box: checked or undetermined becomes unchecked, unchecked becomes checked.
	void ClickCheckBox(const TSharedRef<SWidget>& CheckBox);
	// Opens a combo box's list: the row widgets its OnGenerateWidget makes, one per option.
	std::vector<TSharedRef<SWidget>> OpenComboBox(const TSharedRef<SWidget>& ComboBox);
	// Opens the list and clicks an option (selection kind OnMouseClick), by index or by the text its row
	// shows; false when there is no such option.
	bool ChooseComboOption(const TSharedRef<SWidget>& ComboBox, int32 OptionIndex);
	bool ChooseComboOption(const TSharedRef<SWidget>& ComboBox, const FString& ShownRowText);
	// Replaces the contents of an editable text or text box as a user's typing would, then commits them;
	// false, with nothing changed, when the text is read-only.
	bool CommitText(const TSharedRef<SWidget>& TextWidget, const FString& Text, ETextCommit::Type CommitType = ETextCommit::OnEnter);
}
