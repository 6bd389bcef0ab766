#include "HAL/PlatformFilemanager.h"
#include "LowerLayerDouble.h"
#include "Misc/Paths.h"
#include "SandboxTest.h"
#include "SuperPlatformFile.h"
#include <memory>

namespace
{
	const int64 LowerTicks = 630000000000000000LL;

	std::string ReadAll(IFileHandle* Handle)
	{
		std::unique_ptr<IFileHandle> Owned(Handle);
		if (!Owned)
		{
			return "<no handle>";
		}
		std::string Bytes((size_t)Owned->Size(), '\0');
		Owned->Read((uint8*)&Bytes[0], (int64)Bytes.size());
		return Bytes;
	}

	// The disk holds Disk.txt and Both.txt; the lower layer holds Lower.txt and its own Both.txt.
	class FSuperPlatformFileTest : public FSandboxTest
	{
	protected:
		void SetUp() override
		{
			FSandboxTest::SetUp();
			WriteFile("C:/Game/Disk.txt", "disk!");
			WriteFile("C:/Game/Both.txt", "abc");
			Lower.AddDirectory(TEXT("C:/Game"));
			Lower.AddFile(TEXT("C:/Game/Lower.txt"), "lower..", LowerTicks, true);
			Lower.AddFile(TEXT("C:/Game/Both.txt"), "lower both", LowerTicks, true);
			ASSERT_TRUE(Layer.Initialize(&Lower, TEXT("")));
		}

		FLowerLayerDouble Lower;
		FSuperPlatformFile Layer;
	};
}

TEST_F(FSandboxTest, SuperPlatformLayerDoesNotInitializeWithoutAnInnerLayer)
{
	FSuperPlatformFile Layer;
	EXPECT_FALSE(Layer.Initialize(nullptr, TEXT("")));
}

TEST_F(FSuperPlatformFileTest, AnEmptyFileOnDiskHasSizeZeroThoughTheLowerLayerHoldsOneOfTheSameName)
{
	WriteFile("C:/Game/Empty.txt", "");
	Lower.AddFile(TEXT("C:/Game/Empty.txt"), "lower, not empty");

	EXPECT_EQ(Layer.FileSize(TEXT("C:/Game/Empty.txt")), 0);
	EXPECT_EQ(Layer.GetStatData(TEXT("C:/Game/Empty.txt")).FileSize, 0);
	EXPECT_EQ(ReadAll(Layer.OpenRead(TEXT("C:/Game/Empty.txt"))), "");
}

TEST_F(FSuperPlatformFileTest, TimesAndStatAnswerFromTheDiskFirstThenFromTheLowerLayer)
{
	EXPECT_EQ(Layer.GetTimeStamp(TEXT("C:/Game/Lower.txt")).GetTicks(), LowerTicks);
	EXPECT_EQ(Layer.GetAccessTimeStamp(TEXT("C:/Game/Lower.txt")).GetTicks(), LowerTicks + 1);
	EXPECT_EQ(Layer.GetTimeStamp(TEXT("C:/Game/Both.txt")), IPlatformFile::GetPlatformPhysical().GetTimeStamp(TEXT("C:/Game/Both.txt")));
	EXPECT_NE(Layer.GetAccessTimeStamp(TEXT("C:/Game/Both.txt")).GetTicks(), LowerTicks + 1);
	EXPECT_EQ(Layer.GetTimeStamp(TEXT("C:/Game/Missing.txt")), FDateTime::MinValue());

	const FFileStatData LowerStat = Layer.GetStatData(TEXT("C:/Game/Lower.txt"));
	EXPECT_TRUE(LowerStat.bIsValid);
	EXPECT_EQ(LowerStat.FileSize, 7);
	const FFileStatData BothStat = Layer.GetStatData(TEXT("C:/Game/Both.txt"));
	EXPECT_EQ(BothStat.FileSize, 3);
	EXPECT_FALSE(BothStat.bIsReadOnly);
}

TEST_F(FSuperPlatformFileTest, UnbufferedReadsFlagsAndNamesComeFromTheLayerThatHoldsTheFileAndTheDiskWinsATie)
{
	EXPECT_EQ(ReadAll(Layer.OpenReadNoBuffering(TEXT("C:/Game/Lower.txt"))), "lower..");
	EXPECT_EQ(ReadAll(Layer.OpenReadNoBuffering(TEXT("C:/Game/Both.txt"))), "abc");
	EXPECT_TRUE(Layer.IsReadOnly(TEXT("C:/Game/Lower.txt")));
	EXPECT_FALSE(Layer.IsReadOnly(TEXT("C:/Game/Both.txt")));
	EXPECT_EQ(StandIn::ToUtf8(Layer.GetFilenameOnDisk(TEXT("C:/Game/Lower.txt"))), "lower:C:/Game/Lower.txt");
	EXPECT_EQ(StandIn::ToUtf8(Layer.GetFilenameOnDisk(TEXT("C:/Game/Both.txt"))), "C:/Game/Both.txt");
}

TEST_F(FSuperPlatformFileTest, WritesFallBackToTheLowerLayerWhereTheDiskCannotOpen)
{
	{
		std::unique_ptr<IFileHandle> Below(Layer.OpenWrite(TEXT("C:/Packed/Only/New.txt"), true, true));
		ASSERT_TRUE(Below);
		Below->Write((const uint8*)"below", 5);
	}
	EXPECT_FALSE(Exists("C:/Packed"));
	ASSERT_EQ(Lower.WriteRequests.size(), 1u);
	EXPECT_TRUE(Lower.WriteRequests[0].bAppend);
	EXPECT_TRUE(Lower.WriteRequests[0].bAllowRead);
	ASSERT_NE(Lower.Find(TEXT("C:/Packed/Only/New.txt")), nullptr);
	EXPECT_EQ(Lower.Find(TEXT("C:/Packed/Only/New.txt"))->Bytes, "below");
}

TEST_F(FSuperPlatformFileTest, MovesFlagsAndTimesReachOnlyTheDisk)
{
	EXPECT_TRUE(Layer.MoveFile(TEXT("C:/Game/Moved.txt"), TEXT("C:/Game/Disk.txt")));
	EXPECT_EQ(ReadFile("C:/Game/Moved.txt"), "disk!");
	EXPECT_FALSE(Layer.MoveFile(TEXT("C:/Game/Moved2.txt"), TEXT("C:/Game/Lower.txt")));

	EXPECT_TRUE(Layer.SetReadOnly(TEXT("C:/Game/Moved.txt"), true));
	EXPECT_TRUE(IPlatformFile::GetPlatformPhysical().IsReadOnly(TEXT("C:/Game/Moved.txt")));
	Layer.SetTimeStamp(TEXT("C:/Game/Moved.txt"), FDateTime(LowerTicks));
	EXPECT_EQ(IPlatformFile::GetPlatformPhysical().GetTimeStamp(TEXT("C:/Game/Moved.txt")).GetTicks(), LowerTicks);
}

TEST_F(FSuperPlatformFileTest, StatListingsAndFoundFilesShowOnlyTheLowerLayer)
{
	std::vector<int64> Sizes;
	Layer.IterateDirectoryStat(TEXT("C:/Game"), [&Sizes](const TCHAR* Path, const FFileStatData& Stat) {
		Sizes.push_back(Stat.FileSize);
		return true;
	});
	EXPECT_EQ(Sizes, (std::vector<int64>{10, 7}));

	TArray<FString> Found;
	Layer.FindFiles(Found, TEXT("C:/Game"), TEXT(".txt"));
	EXPECT_EQ(ToUtf8Strings(Found), (std::vector<std::string>{"C:/Game/Both.txt", "C:/Game/Lower.txt"}));
}

TEST_F(FSuperPlatformFileTest, LowerLevelStaysThePhysicalLayerWhileSetLowerLevelReplacesTheInnerLayer)
{
	FLowerLayerDouble Other;
	Other.AddFile(TEXT("C:/Game/Other.txt"), "other");
	Layer.SetLowerLevel(&Other);
	EXPECT_EQ(Layer.GetLowerLevel(), &IPlatformFile::GetPlatformPhysical());
	EXPECT_TRUE(Layer.FileExists(TEXT("C:/Game/Other.txt")));
	EXPECT_FALSE(Layer.FileExists(TEXT("C:/Game/Lower.txt")));
}

// The engine's default asks the lower level, which this layer says is the disk.
TEST_F(FSuperPlatformFileTest, TimeStampPairComesFromTheDiskAlone)
{
	FDateTime TimeA;
	FDateTime TimeB;
	Layer.GetTimeStampPair(TEXT("C:/Game/Lower.txt"), TEXT("C:/Game/Disk.txt"), TimeA, TimeB);
	EXPECT_EQ(TimeA, FDateTime::MinValue());
	EXPECT_EQ(TimeB, IPlatformFile::GetPlatformPhysical().GetTimeStamp(TEXT("C:/Game/Disk.txt")));
}

TEST_F(FSuperPlatformFileTest, OnTopOfTheChainTheEnginesFileServicesSeeTheLowerLayersFiles)
{
	FPlatformFileManager::Get().SetPlatformFile(Layer);
	EXPECT_TRUE(FPaths::FileExists(TEXT("C:/Game/Lower.txt")));
	FPlatformFileManager::Get().SetPlatformFile(*Layer.GetLowerLevel());
	EXPECT_FALSE(FPaths::FileExists(TEXT("C:/Game/Lower.txt")));
}

// The manager walks the chain through GetLowerLevel(), so below the layer it finds the disk, never the
// layer the module put it on.
TEST_F(FSuperPlatformFileTest, FindingLayersInTheChainReachesThePhysicalLayerButNotTheInnerOne)
{
	FPlatformFileManager::Get().SetPlatformFile(Layer);
	EXPECT_EQ(FPlatformFileManager::Get().FindPlatformFile(TEXT("superPLATFORM")), &Layer);
	EXPECT_EQ(FPlatformFileManager::Get().FindPlatformFile(TEXT("PhysicalFile")), &IPlatformFile::GetPlatformPhysical());
	EXPECT_EQ(FPlatformFileManager::Get().FindPlatformFile(TEXT("LowerLayerDouble")), nullptr);
}

TEST_F(FSuperPlatformFileTest, TickingTheChainTicksTheLayersAboveButPassesTheInnerLayerBy)
{
	FLowerLayerDouble Above;
	Above.SetLowerLevel(&Layer);
	FPlatformFileManager::Get().SetPlatformFile(Above);
	FPlatformFileManager::Get().TickActivePlatformFile();
	EXPECT_EQ(Above.TickCount, 1);
	EXPECT_EQ(Lower.TickCount, 0);
}

TEST_F(FSuperPlatformFileTest, RemovingTheLayerBelowAnotherJoinsThatOneToThePhysicalLayer)
{
	FLowerLayerDouble Above;
	Above.SetLowerLevel(&Layer);
	FPlatformFileManager::Get().SetPlatformFile(Above);
	FPlatformFileManager::Get().RemovePlatformFile(&Layer);
	EXPECT_EQ(&FPlatformFileManager::Get().GetPlatformFile(), &Above);
	EXPECT_EQ(Above.GetLowerLevel(), &IPlatformFile::GetPlatformPhysical());
}
