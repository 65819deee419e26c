// SPDX-License-Identifier: MIT
#include "../support/GTest.h"
#include "TestFolder.h"

#include <KernelCommonUse/FileOp.h>
#include <KernelCommonUse/WholeFile.h>

#include <cstdlib>

namespace
{
std::string BytesOf(const CString& path)
{
    const HANDLE file = CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    char bytes[64] = {};
    DWORD read = 0;
    const BOOL complete = ReadFile(file, bytes, sizeof(bytes), &read, nullptr);
    CloseHandle(file);
    return complete ? std::string(bytes, read) : "not read";
}

std::vector<std::string> FilesIn(const CString& folder)
{
    std::vector<std::string> files;
    WIN32_FIND_DATAW found;
    const HANDLE find = FindFirstFileW(folder + L"*", &found);
    do
    {
        if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
        {
            files.push_back(Utf8(found.cFileName));
        }
    } while (FindNextFileW(find, &found));
    FindClose(find);
    return files;
}
} // namespace

TEST(WholeFiles, ReplaceTheFormerOneWhenTheyAreComplete)
{
    TestFolder folder;
    const CString path = folder.Write(L"a.txt", "former");
    {
        WholeFile file(path);
        EXPECT_EQ(Utf8(file.Unfinished().Right(9)), ".part.txt") << "an encoder is chosen by the extension";
        EXPECT_TRUE(FileOp::FileExist(file.Unfinished()));
        EXPECT_EQ(BytesOf(path), "former");
        EXPECT_TRUE(file.Commit());
        EXPECT_EQ(BytesOf(path), "");
        EXPECT_FALSE(file.Commit()) << "it has been given its name already";
    }
    EXPECT_TRUE(WholeFile::Write(path, "new"));
    EXPECT_EQ(BytesOf(path), "new");
    EXPECT_EQ(FilesIn(folder.Path()), std::vector<std::string>{"a.txt"});
}

TEST(WholeFiles, AreGoneWithoutACommit)
{
    TestFolder folder;
    const CString path = folder.Write(L"a.txt", "former");
    {
        const WholeFile file(path);
        EXPECT_EQ(FilesIn(folder.Path()).size(), 2u);
    }
    EXPECT_EQ(FilesIn(folder.Path()), std::vector<std::string>{"a.txt"});
    EXPECT_EQ(BytesOf(path), "former");
}

TEST(WholeFiles, HaveNamesOfTheirOwn)
{
    TestFolder folder;
    const CString path = folder.Path() + L"a.txt";
    const WholeFile first(path);
    const WholeFile second(path);
    EXPECT_NE(Utf8(first.Unfinished()), Utf8(second.Unfinished()));
    // Of a process of the same number on another machine: a file and a folder.
    const CString stem = second.Unfinished().Left(second.Unfinished().ReverseFind(L'-') + 1);
    const std::string number = Utf8(second.Unfinished().Mid(stem.GetLength()));
    const auto last = static_cast<unsigned>(std::strtoul(number.c_str(), nullptr, 16));
    ASSERT_GT(last, 0u);
    CString name;
    name.Format(L"%s%x.part.txt", stem.Mid(folder.Path().GetLength()).GetString(), last + 1);
    folder.Write(name, "another's");
    CString taken;
    taken.Format(L"%s%x.part.txt", stem.GetString(), last + 2);
    ASSERT_TRUE(CreateDirectoryW(taken, nullptr));
    EXPECT_TRUE(WholeFile::Write(path, "own"));
    EXPECT_EQ(BytesOf(path), "own");
    EXPECT_EQ(BytesOf(folder.Path() + name), "another's");
    RemoveDirectoryW(taken);
    DeleteFileW(path);
}

TEST(WholeFiles, LeaveWhatIsProtectedAndFolders)
{
    TestFolder folder;
    const CString path = folder.Write(L"a.txt", "former");
    SetFileAttributesW(path, FILE_ATTRIBUTE_READONLY);
    EXPECT_FALSE(WholeFile::Write(path, "new"));
    EXPECT_EQ(BytesOf(path), "former");
    SetFileAttributesW(path, FILE_ATTRIBUTE_NORMAL);
    EXPECT_FALSE(WholeFile::Write(folder.Path() + L"no such\\a.txt", "new"));
    EXPECT_FALSE(WholeFile::Write(L"", "new"));
    const CString inner = folder.Path() + L"folder";
    ASSERT_TRUE(CreateDirectoryW(inner, nullptr));
    EXPECT_FALSE(WholeFile::Write(inner, "new"));
    WholeFile overFolder(inner);
    EXPECT_FALSE(overFolder.CommitNew());
    RemoveDirectoryW(inner);
    EXPECT_EQ(FilesIn(folder.Path()).size(), 2u) << "the former file and the one that still waits";
}

TEST(WholeFiles, WaitForAReaderAWhileOnly)
{
    TestFolder folder;
    const CString path = folder.Write(L"a.txt", "former");
    const HANDLE held = CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_FALSE(WholeFile::Write(path, "new"));
    CloseHandle(held);
    EXPECT_EQ(BytesOf(path), "former");
    EXPECT_TRUE(WholeFile::Write(path, "new"));
}

TEST(WholeFiles, CommittedAsNewLeaveAFormerOne)
{
    TestFolder folder;
    const CString path = folder.Path() + L"a.txt";
    {
        WholeFile file(path);
        EXPECT_TRUE(file.CommitNew());
    }
    ASSERT_TRUE(WholeFile::Write(path, "of another program"));
    {
        WholeFile file(path);
        EXPECT_TRUE(file.CommitNew());
    }
    EXPECT_EQ(BytesOf(path), "of another program");
    EXPECT_EQ(FilesIn(folder.Path()), std::vector<std::string>{"a.txt"});
    DeleteFileW(path);
}

TEST(WholeFiles, CopiedFromAProtectedOneCanBeReplaced)
{
    TestFolder folder;
    const CString from = folder.Write(L"from.txt", "bytes");
    SetFileAttributesW(from, FILE_ATTRIBUTE_READONLY);
    const CString to = folder.Path() + L"to.txt";
    EXPECT_TRUE(WholeFile::Copy(from, to));
    EXPECT_TRUE(WholeFile::Copy(from, to));
    EXPECT_EQ(BytesOf(to), "bytes");
    SetFileAttributesW(from, FILE_ATTRIBUTE_NORMAL);
    EXPECT_FALSE(WholeFile::Copy(folder.Path() + L"none.txt", to));
    EXPECT_EQ(BytesOf(to), "bytes");
    DeleteFileW(to);
}
