// Copyright UGCEditor contributors. All Rights Reserved.

#include "CoreMinimal.h"
#include "Misc/AutomationTest.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "SuperPlatformFile.h"

#include "GenericPlatform/GenericPlatformFile.h"
#include "Misc/DateTime.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"

namespace UGCEditorPlatformFileSpec
{
	/** A layer below the one under test that holds files the disk does not, as a pak layer would, and notes every request that changes it. */
	class FLowerLayer : public IPlatformFile
	{
	public:
		/** Every file below is this large; the copies on disk are smaller. */
		static constexpr int64 PackedFileSize = 700;

		TArray<FString> Files;
		TArray<FString> Directories;
		TArray<FString> Requests;

		virtual bool Initialize(IPlatformFile* Inner, const TCHAR* CmdLine) override { return true; }
		virtual IPlatformFile* GetLowerLevel() override { return nullptr; }
		virtual void SetLowerLevel(IPlatformFile* NewLowerLevel) override {}
		virtual const TCHAR* GetName() const override { return TEXT("SpecLowerLayer"); }

		virtual bool FileExists(const TCHAR* Filename) override { return Files.Contains(Filename); }
		virtual int64 FileSize(const TCHAR* Filename) override { return Files.Contains(Filename) ? PackedFileSize : -1; }
		virtual bool DeleteFile(const TCHAR* Filename) override { return Note(TEXT("DeleteFile"), Filename); }
		virtual bool IsReadOnly(const TCHAR* Filename) override { return false; }
		virtual bool MoveFile(const TCHAR* To, const TCHAR* From) override { return Note(TEXT("MoveFile"), From); }
		virtual bool SetReadOnly(const TCHAR* Filename, bool bNewReadOnlyValue) override { return Note(TEXT("SetReadOnly"), Filename); }
		virtual FDateTime GetTimeStamp(const TCHAR* Filename) override { return FDateTime::MinValue(); }
		virtual void SetTimeStamp(const TCHAR* Filename, FDateTime DateTime) override { Note(TEXT("SetTimeStamp"), Filename); }
		virtual FDateTime GetAccessTimeStamp(const TCHAR* Filename) override { return FDateTime::MinValue(); }
		virtual FString GetFilenameOnDisk(const TCHAR* Filename) override { return Filename; }
		virtual IFileHandle* OpenRead(const TCHAR* Filename, bool bAllowWrite) override
		{
			Note(TEXT("OpenRead"), Filename);
			return nullptr;
		}
		virtual IFileHandle* OpenWrite(const TCHAR* Filename, bool bAppend, bool bAllowRead) override
		{
			Note(TEXT("OpenWrite"), Filename);
			return nullptr;
		}
		virtual bool DirectoryExists(const TCHAR* Directory) override { return Directories.Contains(Directory); }
		virtual bool CreateDirectory(const TCHAR* Directory) override { return Note(TEXT("CreateDirectory"), Directory); }
		virtual bool DeleteDirectory(const TCHAR* Directory) override { return Note(TEXT("DeleteDirectory"), Directory); }
		virtual FFileStatData GetStatData(const TCHAR* FilenameOrDirectory) override { return FFileStatData(); }
		using IPlatformFile::IterateDirectory;
		virtual bool IterateDirectory(const TCHAR* Directory, FDirectoryVisitor& Visitor) override
		{
			for (const FString& File : Files)
			{
				Visitor.Visit(*File, false);
			}
			return true;
		}
		using IPlatformFile::IterateDirectoryStat;
		virtual bool IterateDirectoryStat(const TCHAR* Directory, FDirectoryStatVisitor& Visitor) override { return true; }

	private:
		bool Note(const TCHAR* Request, const TCHAR* Path)
		{
			Requests.Add(FString(Request) + TEXT(" ") + Path);
			return true;
		}
	};

	class FListingVisitor : public IPlatformFile::FDirectoryVisitor
	{
	public:
		TArray<FString> Listed;

		virtual bool Visit(const TCHAR* FilenameOrDirectory, bool bIsDirectory) override
		{
			Listed.Add(FPaths::GetCleanFilename(FilenameOrDirectory));
			return true;
		}
	};
}

// The layer is made for each case over a lower layer of the spec's own and is never put into the engine's
// chain; its disk side is a folder of the spec's own below the project's Intermediate folder.
BEGIN_DEFINE_SPEC(FSuperPlatformFileSpec, TEXT("UGCEditor.PlatformFile"), EAutomationTestFlags::EditorContext | EAutomationTestFlags::EngineFilter)
FString DiskFolder;
TUniquePtr<UGCEditorPlatformFileSpec::FLowerLayer> LowerLayer;
TUniquePtr<FSuperPlatformFile> Layer;

FString OnDisk(const TCHAR* Name) const
{
	return DiskFolder / Name;
}
END_DEFINE_SPEC(FSuperPlatformFileSpec)

void FSuperPlatformFileSpec::Define()
{
	BeforeEach([this]() {
		DiskFolder = FPaths::ConvertRelativePathToFull(FPaths::ProjectIntermediateDir() / TEXT("UGCEditorSpecs"));
		IPlatformFile::GetPlatformPhysical().DeleteDirectoryRecursively(*DiskFolder);
		// Ten bytes on disk, where the lower layer has its own copy of one of the files at another size.
		TestTrue(TEXT("loose file written"), FFileHelper::SaveStringToFile(TEXT("0123456789"), *OnDisk(TEXT("Loose.txt"))));
		TestTrue(TEXT("shadowing file written"), FFileHelper::SaveStringToFile(TEXT("0123456789"), *OnDisk(TEXT("Both.txt"))));

		LowerLayer = MakeUnique<UGCEditorPlatformFileSpec::FLowerLayer>();
		LowerLayer->Files.Add(OnDisk(TEXT("Both.txt")));
		LowerLayer->Files.Add(OnDisk(TEXT("Packed.txt")));
		LowerLayer->Directories.Add(OnDisk(TEXT("PackedFolder")));

		Layer = MakeUnique<FSuperPlatformFile>();
		Layer->Initialize(LowerLayer.Get(), TEXT(""));
	});

	AfterEach([this]() {
		Layer.Reset();
		LowerLayer.Reset();
		IPlatformFile::GetPlatformPhysical().DeleteDirectoryRecursively(*DiskFolder);
	});

	Describe(TEXT("a file query"), [this]() {
		It(TEXT("should find a file that is only on disk and one that is only below"), [this]() {
			TestTrue(TEXT("loose file exists"), Layer->FileExists(*OnDisk(TEXT("Loose.txt"))));
			TestTrue(TEXT("packed file exists"), Layer->FileExists(*OnDisk(TEXT("Packed.txt"))));
			TestFalse(TEXT("missing file exists"), Layer->FileExists(*OnDisk(TEXT("Missing.txt"))));
		});

		It(TEXT("should give the size on disk first and the lower layer's otherwise"), [this]() {
			TestEqual(TEXT("size of the file in both"), (int32)Layer->FileSize(*OnDisk(TEXT("Both.txt"))), 10);
			TestEqual(TEXT("size of the loose file"), (int32)Layer->FileSize(*OnDisk(TEXT("Loose.txt"))), 10);
			TestEqual(TEXT("size of the packed file"), (int32)Layer->FileSize(*OnDisk(TEXT("Packed.txt"))), 700);
			TestEqual(TEXT("size of a missing file"), (int32)Layer->FileSize(*OnDisk(TEXT("Missing.txt"))), -1);
		});

		It(TEXT("should find a folder on either side"), [this]() {
			TestTrue(TEXT("packed folder exists"), Layer->DirectoryExists(*OnDisk(TEXT("PackedFolder"))));
			TestTrue(TEXT("disk folder exists"), Layer->DirectoryExists(*DiskFolder));
			TestFalse(TEXT("missing folder exists"), Layer->DirectoryExists(*OnDisk(TEXT("Missing"))));
		});
	});

	Describe(TEXT("a read"), [this]() {
		It(TEXT("should read the disk's copy of a file that is in both"), [this]() {
			TUniquePtr<IFileHandle> Handle(Layer->OpenRead(*OnDisk(TEXT("Both.txt"))));
			if (TestTrue(TEXT("file opened"), Handle.IsValid()))
			{
				TestEqual(TEXT("size read"), (int32)Handle->Size(), 10);
			}
			TestEqual(TEXT("requests below"), LowerLayer->Requests.Num(), 0);
		});

		It(TEXT("should go to the lower layer for a file that is not on disk"), [this]() {
			Layer->OpenRead(*OnDisk(TEXT("Packed.txt")));
			TestEqual(TEXT("requests below"), *FString::Join(LowerLayer->Requests, TEXT(", ")), *(TEXT("OpenRead ") + OnDisk(TEXT("Packed.txt"))));
		});
	});

	Describe(TEXT("a listing"), [this]() {
		It(TEXT("should come from the lower layer alone, without the loose files on disk"), [this]() {
			UGCEditorPlatformFileSpec::FListingVisitor Visitor;
			Layer->IterateDirectory(*DiskFolder, Visitor);
			TestEqual(TEXT("files listed"), *FString::Join(Visitor.Listed, TEXT(", ")), TEXT("Both.txt, Packed.txt"));
		});
	});

	Describe(TEXT("a change"), [this]() {
		It(TEXT("should delete a file on disk only, never below"), [this]() {
			TestTrue(TEXT("loose file deleted"), Layer->DeleteFile(*OnDisk(TEXT("Both.txt"))));
			TestFalse(TEXT("packed file deleted"), Layer->DeleteFile(*OnDisk(TEXT("Packed.txt"))));
			TestFalse(TEXT("disk copy left"), IPlatformFile::GetPlatformPhysical().FileExists(*OnDisk(TEXT("Both.txt"))));
			TestEqual(TEXT("requests below"), LowerLayer->Requests.Num(), 0);
		});

		It(TEXT("should write new files to disk"), [this]() {
			TUniquePtr<IFileHandle> Handle(Layer->OpenWrite(*OnDisk(TEXT("New.txt"))));
			TestTrue(TEXT("file opened"), Handle.IsValid());
			Handle.Reset();
			TestTrue(TEXT("new file on disk"), IPlatformFile::GetPlatformPhysical().FileExists(*OnDisk(TEXT("New.txt"))));
			TestEqual(TEXT("requests below"), LowerLayer->Requests.Num(), 0);
		});

		It(TEXT("should make folders on disk but leave their removal to the lower layer"), [this]() {
			TestTrue(TEXT("folder made"), Layer->CreateDirectory(*OnDisk(TEXT("Made"))));
			TestTrue(TEXT("folder on disk"), IPlatformFile::GetPlatformPhysical().DirectoryExists(*OnDisk(TEXT("Made"))));

			Layer->DeleteDirectory(*OnDisk(TEXT("Made")));

			TestTrue(TEXT("folder still on disk"), IPlatformFile::GetPlatformPhysical().DirectoryExists(*OnDisk(TEXT("Made"))));
			TestEqual(TEXT("requests below"), *FString::Join(LowerLayer->Requests, TEXT(", ")), *(TEXT("DeleteDirectory ") + OnDisk(TEXT("Made"))));
		});
	});

	It(TEXT("should hand out the disk, not the layer it was put on, as its lower level"), [this]() {
		TestTrue(TEXT("lower level is the physical layer"), Layer->GetLowerLevel() == &IPlatformFile::GetPlatformPhysical());
	});
}

#endif
