#include "StandIn/ShownText.h"
#include <cstdio>

namespace
{
	// The UTF-8 bytes of a control picture: U+2400 plus the C0 code, U+2421 for DEL.
	void AppendControlPicture(std::string& Out, unsigned char Byte)
	{
		const unsigned Picture = Byte == 0x7F ? 0x2421u : 0x2400u + Byte;
		Out += (char)(0xE0 | (Picture >> 12));
		Out += (char)(0x80 | ((Picture >> 6) & 0x3F));
		Out += (char)(0x80 | (Picture & 0x3F));
	}

	void AppendCodePoint(std::string& Out, unsigned CodePoint)
	{
		char Text[16];
		std::snprintf(Text, sizeof(Text), "<U+%04X>", CodePoint);
		Out += Text;
	}

	bool IsPlain(const std::string& Utf8, bool bSeparatorToo)
	{
		for (const char Char : Utf8)
		{
			const unsigned char Byte = (unsigned char)Char;
			// 0xC2 leads U+0080 to U+00BF and 0xE2 leads U+2000 to U+2FFF: only then is a closer look needed.
			if (Byte < 0x20 || Byte == 0x7F || Byte == 0xC2 || Byte == 0xE2 || (bSeparatorToo && Byte == '|'))
			{
				return false;
			}
		}
		return true;
	}

	std::string Shown(const std::string& Utf8, bool bSeparatorToo)
	{
		if (IsPlain(Utf8, bSeparatorToo))
		{
			return Utf8;
		}
		std::string Out;
		Out.reserve(Utf8.size() + 16);
		for (size_t Index = 0; Index < Utf8.size(); ++Index)
		{
			const unsigned char Byte = (unsigned char)Utf8[Index];
			const unsigned char Next = Index + 1 < Utf8.size() ? (unsigned char)Utf8[Index + 1] : 0;
			const unsigned char Third = Index + 2 < Utf8.size() ? (unsigned char)Utf8[Index + 2] : 0;
			if (Byte < 0x20 || Byte == 0x7F)
			{
				AppendControlPicture(Out, Byte);
			}
			else if (bSeparatorToo && Byte == '|')
			{
				Out += "\xC2\xA6";
			}
			else if (Byte == 0xC2 && Next >= 0x80 && Next <= 0x9F)
			{
				AppendCodePoint(Out, Next);
				++Index;
			}
			else if (Byte == 0xE2 && Next == 0x80 && (Third == 0xA8 || Third == 0xA9))
			{
				AppendCodePoint(Out, 0x2000u + (Third & 0x3F));
				Index += 2;
			}
			else
			{
				Out += (char)Byte;
			}
		}
		return Out;
	}
}

namespace StandIn
{
	std::string ShownValue(const std::string& Utf8)
	{
		return Shown(Utf8, false);
	}

	std::string ShownField(const std::string& Utf8)
	{
		return Shown(Utf8, true);
	}
}
