#include <gtest/gtest.h>
#include <png.h>
#include <set>
#include <string>
#include <vector>

namespace
{
	struct FIconFile
	{
		std::string Name;
		unsigned Size;
	};

	void PrintTo(const FIconFile& Icon, std::ostream* Stream)
	{
		*Stream << Icon.Name;
	}

	class FIconFileTest : public ::testing::TestWithParam<FIconFile>
	{
	};
}

// Decoded by libpng, so that a file the engine's image loader would reject fails here too.
TEST_P(FIconFileTest, IconDecodesAtItsSizeWithTransparencyAndRealDetail)
{
	const std::string Path = std::string(RESOURCES_DIR) + "/" + GetParam().Name;
	png_image Image{};
	Image.version = PNG_IMAGE_VERSION;
	ASSERT_TRUE(png_image_begin_read_from_file(&Image, Path.c_str())) << Image.message;
	const bool bFileHasAlpha = (Image.format & PNG_FORMAT_FLAG_ALPHA) != 0;
	Image.format = PNG_FORMAT_RGBA;
	std::vector<png_byte> Pixels(PNG_IMAGE_SIZE(Image));
	ASSERT_TRUE(png_image_finish_read(&Image, nullptr, Pixels.data(), 0, nullptr)) << Image.message;

	EXPECT_EQ(Image.width, GetParam().Size);
	EXPECT_EQ(Image.height, GetParam().Size);
	EXPECT_TRUE(bFileHasAlpha);
	size_t Transparent = 0;
	std::set<uint32_t> Colours;
	for (size_t Index = 0; Index + 3 < Pixels.size(); Index += 4)
	{
		if (Pixels[Index + 3] == 0)
		{
			++Transparent;
		}
		Colours.insert((uint32_t)Pixels[Index] << 24 | (uint32_t)Pixels[Index + 1] << 16 | (uint32_t)Pixels[Index + 2] << 8 | Pixels[Index + 3]);
	}
	EXPECT_GT(Transparent, 0u);
	EXPECT_GE(Colours.size(), 64u);
}

INSTANTIATE_TEST_SUITE_P(ProjectResources, FIconFileTest,
						 ::testing::Values(FIconFile{"CreateUGC_64x.png", 64}, FIconFile{"PackageUGC_64x.png", 64}, FIconFile{"DistributeUGC_64x.png", 64}, FIconFile{"Icon128.png", 128}),
						 [](const ::testing::TestParamInfo<FIconFile>& Info) {
	return Info.param.Name.substr(0, Info.param.Name.find('.'));
});
