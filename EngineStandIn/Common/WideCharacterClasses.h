#pragma once

// Wide characters classified as the Microsoft C runtime classifies them on Windows, whatever locale the
// host runs in: by their Unicode properties, so that "é", "Ž" and "鉄" are letters. Shared by the
// stand-in engine and its helper programs.
namespace WideCharacterClasses
{
	bool IsLetter(wchar_t Char);
	bool IsLetterOrDigit(wchar_t Char);
	// The simple upper-case mapping, the one NTFS folds names with when it compares them.
	wchar_t ToUpperCase(wchar_t Char);
}
