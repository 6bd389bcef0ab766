#include "DistributionTestSupport.h"
#include <cstdlib>
#include <fstream>
#include <iconv.h>
#include <optional>

// The descriptor files a run writes, byte for byte, in the encoding the engine picks for their text.
namespace
{
	// Decoded by the C library's converter, not by anything of ours; nothing when the bytes are not UTF-16LE.
	std::optional<std::string> Utf16LittleEndianToUtf8(std::string Bytes)
	{
		iconv_t Converter = iconv_open("UTF-8", "UTF-16LE");
		std::string Text(Bytes.size() * 2, '\0');
		char* In = &Bytes[0];
		size_t InLeft = Bytes.size();
		char* Out = &Text[0];
		size_t OutLeft = Text.size();
		const size_t Result = iconv(Converter, &In, &InLeft, &Out, &OutLeft);
		iconv_close(Converter);
		if (Result == (size_t)-1)
		{
			return std::nullopt;
		}
		Text.resize(Text.size() - OutLeft);
		return Text;
	}

	// Checked by jq, a JSON parser nobody here wrote.
	bool ParsesAsJson(const std::string& Bytes)
	{
		const std::string Path = testing::TempDir() + "/ugc-descriptor.json";
		std::ofstream(Path, std::ios::binary) << Bytes;
		return HostShell("jq -e . '" + Path + "' > /dev/null") == 0;
	}

	const std::string ByteOrderMark = "\xFF\xFE";
}

TEST_F(FDistributionTest, DlcDescriptorsNameTheRunsFirstPluginAndTheManifestStaysStaged)
{
	Cook("Alpha");
	Cook("Gamma");

	Distribute({Entry("Alpha", true), Entry("Gamma", true)}, false);

	EXPECT_EQ(ToolCallPackedFile(PakTool, 1, "Moravane/Plugins/DLC/Gamma/Content/Gamma.dlc"), Fill(DlcTemplate, "Gamma", "Alpha"));
	EXPECT_EQ(ToolCallPackedFile(PakTool, 1, "Moravane/Plugins/DLC/Gamma/Gamma.uplugin"), Fill(UPluginTemplate, "Gamma"));
	EXPECT_EQ(ToolCallPackedFile(PakTool, 1, "Moravane/Plugins/Gamma.upluginmanifest"), Fill(ManifestTemplate, "Gamma"));
	EXPECT_EQ(ToolCallPackedFile(PakTool, 1, "Moravane/Plugins/Alpha.upluginmanifest"), Fill(ManifestTemplate, "Alpha"));
	EXPECT_FALSE(Exists(CookedFolder("Alpha") + "/Alpha.upluginmanifest"));
}

TEST_F(FDistributionTest, UgcDescriptorsListTheRequiredDLCsQuotedAsTyped)
{
	Cook("First");
	Cook("Second");
	Cook("Third");

	Distribute({Entry("First", false), Entry("Second", true, {"DLC_A", "DLC_B"}), Entry("Third", true, {R"(Quo"te)", R"(Back\slash)"})}, true);

	EXPECT_EQ(ReadFile(CookedFolder("Second") + "/Content/Second.ugc"), FillUgc("Second", "First", R"("DLC_A", "DLC_B")"));
	EXPECT_EQ(ToolCallPackedFile(PakTool, 1, "Moravane/Plugins/DLC/Third/Content/Third.ugc"), FillUgc("Third", "First", R"("Quo"te", "Back\slash")"));
	EXPECT_FALSE(Exists(CookedFolder("Second") + "/Content/Second.dlc"));
}

TEST_F(FDistributionTest, DLCNamesWithBlanksReachTheUgcAsTheyCame)
{
	Cook("Route");
	Cook("Last");

	Distribute({Entry("Route", true, {" Moravane_Base ", "", "\tSignals"}), Entry("Last", true)}, true);

	EXPECT_EQ(ReadFile(CookedFolder("Route") + "/Content/Route.ugc"), FillUgc("Route", "Route", "\" Moravane_Base \", \"\", \"\tSignals\""));
}

TEST_F(FDistributionTest, NoRequiredDLCsMakeAnEmptyDependencyList)
{
	Cook("Route");
	Cook("Last");

	Distribute({Entry("Route", true), Entry("Last", true)}, true);

	const std::string Ugc = ReadFile(CookedFolder("Route") + "/Content/Route.ugc");
	EXPECT_EQ(Ugc, FillUgc("Route", "Route", ""));
	EXPECT_TRUE(ParsesAsJson(Ugc)) << Ugc;
}

TEST_F(FDistributionTest, SevenBitNamesAreWrittenAsSingleByteJson)
{
	Cook("Plain");
	Cook("Last");

	Distribute({Entry("Plain", true, {"DLC_A"}), Entry("Last", true)}, true);

	for (const std::string& Bytes : {ReadFile(CookedFolder("Plain") + "/Content/Plain.ugc"), ReadFile(CookedFolder("Plain") + "/Plain.uplugin"), ToolCallPackedFile(PakTool, 1, "Moravane/Plugins/Plain.upluginmanifest")})
	{
		EXPECT_NE(Bytes.substr(0, 2), ByteOrderMark);
		EXPECT_EQ(Bytes.find('\0'), std::string::npos) << "one byte a character";
		EXPECT_TRUE(ParsesAsJson(Bytes)) << Bytes;
	}
	EXPECT_EQ(ReadFile(CookedFolder("Plain") + "/Plain.uplugin"), Fill(UPluginTemplate, "Plain"));
}

TEST_F(FDistributionTest, ALatin1NameIsWrittenAsUtf16WithAByteOrderMark)
{
	Cook("Café");
	Cook("Last");

	Distribute({Entry("Café", true), Entry("Last", true)}, false);

	const std::string Dlc = ReadFile(CookedFolder("Café") + "/Content/Café.dlc");
	ASSERT_EQ(Dlc.substr(0, 2), ByteOrderMark);
	const std::optional<std::string> Text = Utf16LittleEndianToUtf8(Dlc.substr(2));
	ASSERT_TRUE(Text.has_value());
	EXPECT_EQ(*Text, Fill(DlcTemplate, "Café", "Café"));
}

TEST_F(FDistributionTest, ANameBeyondLatin1IsWrittenAsUtf16InEveryDescriptorAndTheResponseFile)
{
	Cook("Plain");
	Cook("Dvořák");
	Cook("Last");

	Distribute({Entry("Plain", true), Entry("Dvořák", true, {"DLC_A"}), Entry("Last", true)}, true);

	const std::string Ugc = ReadFile(CookedFolder("Dvořák") + "/Content/Dvořák.ugc");
	const std::string UPlugin = ReadFile(CookedFolder("Dvořák") + "/Dvořák.uplugin");
	const std::string Manifest = ToolCallPackedFile(PakTool, 1, "Moravane/Plugins/Dvořák.upluginmanifest");
	for (const std::string& Bytes : {Ugc, UPlugin, Manifest, ToolCallResponseFile(PakTool, 1)})
	{
		ASSERT_EQ(Bytes.substr(0, 2), ByteOrderMark);
	}
	EXPECT_EQ(Utf16LittleEndianToUtf8(Ugc.substr(2)), FillUgc("Dvořák", "Plain", R"("DLC_A")"));
	EXPECT_EQ(Utf16LittleEndianToUtf8(UPlugin.substr(2)), Fill(UPluginTemplate, "Dvořák"));
	EXPECT_EQ(Utf16LittleEndianToUtf8(Manifest.substr(2)), Fill(ManifestTemplate, "Dvořák"));
	EXPECT_TRUE(ParsesAsJson(Utf16LittleEndianToUtf8(Ugc.substr(2)).value_or(""))) << "the text is JSON once decoded";
}
