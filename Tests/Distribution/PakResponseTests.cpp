#include "DistributionTestSupport.h"
#include <algorithm>

// What the response file hands the pak tool: every staged file once per root it is reached from, less
// the merged registries and the cooked metadata.
namespace
{
	size_t CountOf(const std::vector<std::string>& Lines, const std::string& Line)
	{
		return (size_t)std::count(Lines.begin(), Lines.end(), Line);
	}
}

TEST_F(FDistributionTest, FilesBelowTheLinksAreListedOncePerRootInWalkOrder)
{
	Cook("Alpha");
	Cook("Beta");

	Distribute({Entry("Alpha", true), Entry("Beta", false)}, false);

	const std::vector<std::string> BelowLinks = Concatenated({
		StagedLinesOf("Alpha", {"Alpha.uplugin", "Content/Alpha.dlc", "Content/AssetRegistry.bin", "Content/Maps/Route.uexp", "Content/Maps/Route.umap"}),
		StagedLinesOf("Beta", {"AssetRegistry.bin", "Content/AssetRegistry.bin", "Content/Maps/Route.uexp", "Content/Maps/Route.umap"}),
	});
	EXPECT_EQ(SplitLines(ToolCallResponseFile(PakTool, 1)), Concatenated({{ResponseLine("Moravane/Plugins/Alpha.upluginmanifest")}, BelowLinks, BelowLinks}));
	EXPECT_EQ(ToolCallResponseFile(PakTool, 1).back(), '\n');
}

TEST_F(FDistributionTest, EveryFurtherOriginalIsMergedIntoTheFirstAndLeftOutOfThePak)
{
	Cook("A");
	Cook("B");
	Cook("C");

	Distribute({Entry("A", true), Entry("B", true), Entry("C", true)}, false);

	ASSERT_EQ(ToolCallCount(Merger), 2);
	EXPECT_EQ(ToolCallArguments(Merger, 1), (std::vector<std::string>{StagedRegistryOf("A"), StagedRegistryOf("B"), StagedRegistryOf("A"), MergerPassword}));
	EXPECT_EQ(ToolCallArguments(Merger, 2), (std::vector<std::string>{StagedRegistryOf("A"), StagedRegistryOf("C"), StagedRegistryOf("A"), MergerPassword}));
	const std::vector<std::string> Response = SplitLines(ToolCallResponseFile(PakTool, 1));
	EXPECT_EQ(CountOf(Response, ResponseLine("Moravane/Plugins/DLC/A/Content/AssetRegistry.bin")), 2u);
	EXPECT_EQ(CountOf(Response, ResponseLine("Moravane/Plugins/DLC/B/Content/AssetRegistry.bin")), 0u);
	EXPECT_EQ(CountOf(Response, ResponseLine("Moravane/Plugins/DLC/C/Content/AssetRegistry.bin")), 0u);
	EXPECT_EQ(CountOf(Response, ResponseLine("Moravane/Plugins/DLC/B/Content/Maps/Route.umap")), 2u);
}

TEST_F(FDistributionTest, AMergedRegistryIsLeftOutWhateverTheLetterCaseOfItsFileOnDisk)
{
	Cook("A");
	WriteFile(CookedFolder("B") + "/Content/assetregistry.bin", "registry of B");
	WriteFile(CookedFolder("B") + "/Content/Maps/Route.umap", "map of B");

	Distribute({Entry("A", true), Entry("B", true)}, false);

	const std::vector<std::string> Response = SplitLines(ToolCallResponseFile(PakTool, 1));
	EXPECT_EQ(CountOf(Response, ResponseLine("Moravane/Plugins/DLC/B/Content/assetregistry.bin")), 0u);
	EXPECT_EQ(CountOf(Response, ResponseLine("Moravane/Plugins/DLC/B/Content/Maps/Route.umap")), 2u);
}

TEST_F(FDistributionTest, MetadataFoldersInAnyLetterCaseAreNeverPacked)
{
	Cook("A");
	WriteFile(CookedFolder("A") + "/Content/METADATA/Extra.bin", "x");
	WriteFile(CookedFolder("A") + "/Content/metadata/Other.bin", "x");
	WriteFile(CookedFolder("A") + "/Content/MetadataNotes.txt", "kept: not a metadata folder");

	Distribute({Entry("A", true)}, false);

	// A folder's own files come before its sub-folders'.
	const std::vector<std::string> Response = SplitLines(ToolCallResponseFile(PakTool, 1));
	EXPECT_EQ(Response, Concatenated({
							{ResponseLine("Moravane/Plugins/A.upluginmanifest")},
							StagedLinesOf("A", {"A.uplugin", "Content/A.dlc", "Content/AssetRegistry.bin", "Content/MetadataNotes.txt", "Content/Maps/Route.uexp", "Content/Maps/Route.umap"}),
							StagedLinesOf("A", {"A.uplugin", "Content/A.dlc", "Content/AssetRegistry.bin", "Content/MetadataNotes.txt", "Content/Maps/Route.uexp", "Content/Maps/Route.umap"}),
						}));
}

TEST_F(FDistributionTest, ASingleOriginalAmongOthersIsNotMerged)
{
	Cook("Other");
	Cook("Solo");

	Distribute({Entry("Other", false), Entry("Solo", true)}, false);

	EXPECT_EQ(ToolCallCount(Merger), 0);
	EXPECT_EQ(CountOf(SplitLines(ToolCallResponseFile(PakTool, 1)), ResponseLine("Moravane/Plugins/DLC/Solo/Content/AssetRegistry.bin")), 2u);
}
