#include "Containers/StringConv.h"

FTCHARToUTF8::FTCHARToUTF8(const TCHAR* Source)
{
	if (Source == nullptr)
	{
		return;
	}
	for (const TCHAR* Cursor = Source; *Cursor; ++Cursor)
	{
		uint32 CodePoint = (uint32)*Cursor;
		if (CodePoint >= 0xD800 && CodePoint <= 0xDBFF && Cursor[1] >= 0xDC00 && Cursor[1] <= 0xDFFF)
		{
			CodePoint = 0x10000 + ((CodePoint - 0xD800) << 10) + ((uint32)Cursor[1] - 0xDC00);
			++Cursor;
		}
		if (CodePoint < 0x80)
		{
			Converted += (char)CodePoint;
		}
		else if (CodePoint < 0x800)
		{
			Converted += (char)(0xC0 | (CodePoint >> 6));
			Converted += (char)(0x80 | (CodePoint & 0x3F));
		}
		else if (CodePoint < 0x10000)
		{
			Converted += (char)(0xE0 | (CodePoint >> 12));
			Converted += (char)(0x80 | ((CodePoint >> 6) & 0x3F));
			Converted += (char)(0x80 | (CodePoint & 0x3F));
		}
		else
		{
			Converted += (char)(0xF0 | (CodePoint >> 18));
			Converted += (char)(0x80 | ((CodePoint >> 12) & 0x3F));
			Converted += (char)(0x80 | ((CodePoint >> 6) & 0x3F));
			Converted += (char)(0x80 | (CodePoint & 0x3F));
		}
	}
}

FUTF8ToTCHAR::FUTF8ToTCHAR(const ANSICHAR* Source, int32 SourceLen)
{
	if (Source == nullptr)
	{
		return;
	}
	const std::string Bytes = SourceLen < 0 ? std::string(Source) : std::string(Source, (size_t)SourceLen);
	size_t Index = 0;
	while (Index < Bytes.size())
	{
		const unsigned char Lead = (unsigned char)Bytes[Index];
		int Extra = Lead < 0x80 ? 0 : (Lead >> 5) == 0x6 ? 1
								  : (Lead >> 4) == 0xE	 ? 2
								  : (Lead >> 3) == 0x1E	 ? 3
														 : -1;
		if (Extra < 0 || Index + (size_t)Extra > Bytes.size() - 1)
		{
			// Not UTF-8: the replacement character, as the engine's converter writes.
			Converted += (TCHAR)0xFFFD;
			++Index;
			continue;
		}
		uint32 CodePoint = Extra == 0 ? Lead : Lead & (0x3F >> Extra);
		bool bValid = true;
		for (int Continuation = 1; Continuation <= Extra; ++Continuation)
		{
			const unsigned char Next = (unsigned char)Bytes[Index + (size_t)Continuation];
			if ((Next & 0xC0) != 0x80)
			{
				bValid = false;
				break;
			}
			CodePoint = (CodePoint << 6) | (Next & 0x3F);
		}
		if (!bValid)
		{
			Converted += (TCHAR)0xFFFD;
			++Index;
			continue;
		}
		Converted += (TCHAR)CodePoint;
		Index += (size_t)Extra + 1;
	}
}
