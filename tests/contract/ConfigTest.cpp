#include "tests/contract/Declared.h"

namespace
{

TEST(Contract, declares_profile_files)
{
    using Text = const char*;
    EXPECT_TRUE((Declared<int(Text, Text, Text, Text, ...)>(ProfileRead)));
    EXPECT_TRUE((Declared<int(Text, Text, Text, int, Text, ...)>(ProfileRead)));
    EXPECT_TRUE((Declared<int(Text, Text, Text, Text, ...)>(ProfileWrite)));
    EXPECT_TRUE((Declared<int(Text, Text, Text, int, Text, ...)>(ProfileWrite)));
    EXPECT_TRUE((Declared<void(Text, Text, Text)>(ProfileDelete)));
    EXPECT_TRUE((Declared<void(Text, Text, Text, int)>(ProfileDelete)));
    EXPECT_TRUE((Declared<int(Text, Text, Text)>(ProfileReadInt)));
    EXPECT_TRUE((Declared<int(Text, Text, Text, int)>(ProfileReadInt)));
    EXPECT_TRUE((Declared<WORD(Text, Text, Text)>(ProfileReadHex)));
    EXPECT_TRUE((Declared<WORD(Text, Text, Text, int)>(ProfileReadHex)));
    EXPECT_TRUE((Declared<LPTSTR(Text, Text, Text)>(ProfileReadAsc)));
    EXPECT_TRUE((Declared<LPTSTR(Text, Text, Text, int)>(ProfileReadAsc)));
    EXPECT_TRUE((Declared<void(Text, Text, Text, int)>(ProfileWriteInt)));
    EXPECT_TRUE((Declared<void(Text, Text, Text, int, int)>(ProfileWriteInt)));
    EXPECT_TRUE((Declared<void(Text, Text, Text, WORD)>(ProfileWriteHexa)));
    EXPECT_TRUE((Declared<void(Text, Text, Text, int, WORD)>(ProfileWriteHexa)));
    EXPECT_TRUE((Declared<void(Text, Text, Text, Text)>(ProfileWriteAsc)));
    EXPECT_TRUE((Declared<void(Text, Text, Text, int, Text)>(ProfileWriteAsc)));
    EXPECT_TRUE(Declared<unsigned short(Text)>(atoh));
}

TEST(Contract, declares_file_readers_and_writers)
{
    using Text = const char*;
    EXPECT_TRUE(Member<FILE*>(&CFileRead::fp));
    EXPECT_TRUE(Member<char[255]>(&CFileRead::FileName));
    EXPECT_TRUE((Member<int(Text, Text, Text, int)>(&CFileRead::Open)));
    EXPECT_TRUE((Member<int(void*, int, int, Text, int)>(&CFileRead::ReadBlock)));
    EXPECT_TRUE((Member<int(int, void*, int, int, Text, int)>(&CFileRead::ReadRecord)));
    static_assert(std::is_default_constructible_v<CFileRead>);
    static_assert(std::is_constructible_v<CFileRead, Text, Text, Text, int>);
    static_assert(!std::is_polymorphic_v<CFileRead>);

    EXPECT_TRUE(Member<FILE*>(&CFileWrite::fp));
    EXPECT_TRUE(Member<char[255]>(&CFileWrite::FileName));
    EXPECT_TRUE((Member<int(Text, Text, Text, int)>(&CFileWrite::Open)));
    EXPECT_TRUE((Member<int(Text, Text, Text, int)>(&CFileWrite::Create)));
    EXPECT_TRUE((Member<int(const void*, int, int, Text, int)>(&CFileWrite::WriteBlock)));
    EXPECT_TRUE((Member<int(int, const void*, int, int, Text, int)>(&CFileWrite::WriteRecord)));
    static_assert(std::is_default_constructible_v<CFileWrite>);
    static_assert(std::is_constructible_v<CFileWrite, Text, Text, Text, int>);
    static_assert(!std::is_polymorphic_v<CFileWrite>);
}

TEST(Contract, declares_file_functions)
{
    using Text = const char*;
    EXPECT_TRUE((Declared<int(Text, Text, void*, int, int, Text, int)>(FileRead)));
    EXPECT_TRUE((Declared<int(Text, Text, int, void*, int, int, Text, int)>(FileRead)));
    EXPECT_TRUE((Declared<int(Text, Text, const void*, int, int, Text, int)>(FileWrite)));
    EXPECT_TRUE((Declared<int(Text, Text, int, const void*, int, int, Text, int)>(FileWrite)));
    EXPECT_TRUE((Declared<int(Text, Text, Text, Text, Text, int)>(FileCopy)));
    EXPECT_TRUE((Declared<int(Text, Text, Text, Text, int)>(FileRename)));
    EXPECT_TRUE((Declared<int(Text, Text, Text, int)>(FileDelete)));
    EXPECT_TRUE((Declared<int(Text, Text)>(FileExist)));
    EXPECT_TRUE((Declared<int(Text, Text)>(FileSize)));
    EXPECT_TRUE((Declared<int(Text, Text, int*)>(FileDate)));
    EXPECT_TRUE((Declared<int(Text, Text, Text, Text)>(FileCompare)));
    EXPECT_TRUE((Declared<int(Text, Text, void*, int, int)>(FileVerify)));
    EXPECT_TRUE((Declared<int(Text, Text, int, void*, int, int)>(FileVerify)));
    EXPECT_TRUE((Declared<int(Text, Text)>(FileCount)));
    EXPECT_TRUE((Declared<int(Text, Text, char*, char**, int, int, int)>(FolderRead)));
    EXPECT_TRUE((Declared<int(Text, Text, int)>(CreateFolder)));
    EXPECT_TRUE((Declared<int(Text, Text, int)>(DeleteFolder)));
    EXPECT_TRUE((Declared<int(Text, Text, Text, int)>(CopyFolder)));
    EXPECT_TRUE((Declared<void(char*, Text, Text, Text)>(MakePath)));
    EXPECT_TRUE((Declared<void(Text, char*, char*, char*)>(SplitPath)));
}

} // namespace
