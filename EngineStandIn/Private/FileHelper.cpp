#include "Misc/FileHelper.h"
#include "Containers/StringConv.h"
#include "GenericPlatform/GenericPlatformFile.h"
#include "HAL/PlatformFilemanager.h"
#include "Serialization/Archive.h"
#include <algorithm>
#include <memory>
#include <string>

namespace
{
	void AppendUtf16LittleEndian(std::string& Bytes, uint32 CodeUnit)
	{
		Bytes += (char)(CodeUnit & 0xFF);
		Bytes += (char)((CodeUnit >> 8) & 0xFF);
	}

	// TCHAR is UTF-32 here; the file gets the UTF-16 the engine writes on Windows.
	std::string ToUtf16LittleEndian(const std::wstring& Text)
	{
		std::string Bytes;
		for (const wchar_t Char : Text)
		{
			const uint32 CodePoint = (uint32)Char;
			if (CodePoint >= 0x10000)
			{
				AppendUtf16LittleEndian(Bytes, 0xD800 + ((CodePoint - 0x10000) >> 10));
				AppendUtf16LittleEndian(Bytes, 0xDC00 + ((CodePoint - 0x10000) & 0x3FF));
			}
			else
			{
				AppendUtf16LittleEndian(Bytes, CodePoint);
			}
		}
		return Bytes;
	}

	bool IsPureAnsi(const std::wstring& Text)
	{
		for (const wchar_t Char : Text)
		{
			if ((uint32)Char > 0x7F)
			{
				return false;
			}
		}
		return true;
	}
}

bool FFileHelper::LoadFileToString(FString& Result, const TCHAR* Filename, EHashOptions VerifyFlags, uint32 ReadFlags)
{
	std::unique_ptr<IFileHandle> Handle(FPlatformFileManager::Get().GetPlatformFile().OpenRead(Filename, false));
	if (!Handle)
	{
		return false;
	}
	const int64 Size = Handle->Size();
	std::string Bytes((size_t)std::max<int64>(Size, 0), '\0');
	if (Size > 0 && !Handle->Read((uint8*)Bytes.data(), Size))
	{
		return false;
	}
	std::wstring Text;
	if (Bytes.size() >= 2 && (uint8)Bytes[0] == 0xFF && (uint8)Bytes[1] == 0xFE)
	{
		for (size_t Index = 2; Index + 1 < Bytes.size(); Index += 2)
		{
			uint32 Unit = (uint8)Bytes[Index] | ((uint32)(uint8)Bytes[Index + 1] << 8);
			if (Unit >= 0xD800 && Unit < 0xDC00 && Index + 3 < Bytes.size())
			{
				const uint32 Low = (uint8)Bytes[Index + 2] | ((uint32)(uint8)Bytes[Index + 3] << 8);
				Unit = 0x10000 + ((Unit - 0xD800) << 10) + (Low - 0xDC00);
				Index += 2;
			}
			Text += (wchar_t)Unit;
		}
		Result = FString(Text.c_str());
		return true;
	}
	const size_t Start = Bytes.size() >= 3 && Bytes.compare(0, 3, "\xEF\xBB\xBF") == 0 ? 3 : 0;
	Result = FString(FUTF8ToTCHAR(Bytes.data() + Start, (int32)(Bytes.size() - Start)).Get());
	return true;
}

bool FFileHelper::SaveStringToFile(FStringView String, const TCHAR* Filename, EEncodingOptions EncodingOptions, IFileManager* FileManager, uint32 WriteFlags)
{
	std::unique_ptr<FArchive> Ar(FileManager->CreateFileWriter(Filename, WriteFlags));
	if (!Ar)
	{
		return false;
	}
	if (String.IsEmpty())
	{
		return Ar->Close();
	}
	const std::wstring Text(String.GetData(), (size_t)String.Len());
	std::string Bytes;
	if (EncodingOptions == EEncodingOptions::ForceUTF8 || EncodingOptions == EEncodingOptions::ForceUTF8WithoutBOM)
	{
		if (EncodingOptions == EEncodingOptions::ForceUTF8)
		{
			Bytes = "\xEF\xBB\xBF";
		}
		Bytes += FTCHARToUTF8(Text.c_str()).Get();
	}
	else if (EncodingOptions == EEncodingOptions::ForceUnicode || (EncodingOptions == EEncodingOptions::AutoDetect && !IsPureAnsi(Text)))
	{
		Bytes = "\xFF\xFE" + ToUtf16LittleEndian(Text);
	}
	else
	{
		for (const wchar_t Char : Text)
		{
			Bytes += (uint32)Char <= 0xFF ? (char)Char : '?';
		}
	}
	Ar->Serialize(Bytes.data(), (int64)Bytes.size());
	return Ar->Close();
}
