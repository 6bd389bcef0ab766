#include "Misc/FileHelper.h"
#include "Containers/StringConv.h"
#include "Serialization/Archive.h"
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
