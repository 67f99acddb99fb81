// Files: what is known of them, their contents, copying and deleting.
#include "Platform/contract/Contract.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

class FileContract : public Contract {
 protected:
  FileStatus Status(const Text& name) {
    FileStatus status;
    EXPECT_TRUE(platform_.GetFileStatus(name, status));
    return status;
  }
  bool Exists(const Text& name) {
    FileStatus status;
    return platform_.GetFileStatus(name, status);
  }
  ErrorNumber ReadError(const Text& name) {
    return ErrorOf([&] { platform_.OpenRead(name); });
  }
  ErrorNumber WriteError(const Text& name) {
    return ErrorOf([&] { platform_.OpenWrite(name); });
  }
  ErrorNumber CopyError(const Text& source, const Text& destination) {
    return ErrorOf([&] { platform_.CopyFile(source, destination); });
  }
  ErrorNumber DeleteError(const Text& name) {
    return ErrorOf([&] { platform_.DeleteFile(name); });
  }
};

// --- Status -----------------------------------------------------------------------------------

TEST_F(FileContract, StatusGivesLengthAndLocalDate) {
  disc_.File("JEUX/DAMES.EXE", std::string(1234, 'x'), {1996, 12, 31, 23, 59, 57});
  const FileStatus status = Status(u"D:\\JEUX\\DAMES.EXE");
  EXPECT_EQ(status.length, 1234);
  EXPECT_EQ(status.modified, (LocalTime{1996, 12, 31, 23, 59, 57}));
  EXPECT_FALSE(status.attributes & (kAttributeDirectory | kAttributeHidden));
}

TEST_F(FileContract, StatusTakesNoNoticeOfCase) {
  disc_.File("Jeux/D\xC3\xA9mo.exe", "12345");
  EXPECT_EQ(Status(u"d:\\JEUX\\D\u00C9MO.EXE").length, 5);
}

TEST_F(FileContract, StatusOfAnEmptyFile) {
  disc_.File("VIDE.TXT");
  EXPECT_EQ(Status(u"D:\\VIDE.TXT").length, 0);
}

TEST_F(FileContract, ADirectoryHasNoLength) {
  disc_.File("JEUX/DAMES.EXE", "contents");
  for (const Text& name : {Text(u"D:\\JEUX"), Text(u"D:\\")}) {
    EXPECT_TRUE(Status(name).attributes & kAttributeDirectory);
    EXPECT_EQ(Status(name).length, 0);
  }
}

TEST_F(FileContract, StatusTellsHiddenFiles) {
  disc_.File(".cache");
  disc_.Hide(".cache");
  EXPECT_TRUE(Status(u"D:\\.cache").attributes & kAttributeHidden);
}

TEST_F(FileContract, NoStatusWhereThereIsNothing) {
  disc_.File("FICHIER.TXT");
  EXPECT_FALSE(Exists(u"D:\\AUTRE.TXT"));
  EXPECT_FALSE(Exists(u"D:\\NULLEPART\\AUTRE.TXT"));
  EXPECT_FALSE(Exists(u"D:\\FICHIER.TXT\\AUTRE.TXT"));
  EXPECT_FALSE(Exists(u"Q:\\AUTRE.TXT"));
  EXPECT_FALSE(Exists(u""));
}

TEST_F(FileContract, NoStatusByAPattern) {
  disc_.File("FICHIER.TXT");
  EXPECT_FALSE(Exists(u"D:\\*.TXT"));
  EXPECT_FALSE(Exists(u"D:\\FICHIER.TX?"));
}

TEST_F(FileContract, ADeviceNameIsAFileNameLikeAnyOther) {
  EXPECT_FALSE(Exists(u"D:\\NUL"));
  EXPECT_EQ(ReadError(u"D:\\NUL"), ErrorNumber::kFileNotFound);
  EXPECT_EQ(ReadError(u"D:\\CON"), ErrorNumber::kFileNotFound);
  disc_.File("PRN.TXT", "un fichier");
  EXPECT_EQ(Contents(u"D:\\PRN.TXT"), "un fichier");
  EXPECT_THAT(FindAll(u"D:\\PRN.TXT"), ElementsAre(u"PRN.TXT"));
}

TEST_F(FileContract, StatusFollowsWhatOthersDo) {
  EXPECT_FALSE(Exists(u"D:\\A.TXT"));
  disc_.File("A.TXT", "1");
  EXPECT_EQ(Status(u"D:\\A.TXT").length, 1);
  disc_.File("A.TXT", "22");
  EXPECT_EQ(Status(u"D:\\A.TXT").length, 2);
  disc_.Remove("A.TXT");
  EXPECT_FALSE(Exists(u"D:\\A.TXT"));
}

// --- Reading ----------------------------------------------------------------------------------

TEST_F(FileContract, ReadsEveryByteInPieces) {
  std::string bytes;
  for (int value = 0; value < 256; ++value) bytes.push_back(static_cast<char>(value));
  disc_.File("OCTETS.BIN", bytes);
  const FileHandle file = platform_.OpenRead(u"D:\\octets.bin");
  char buffer[200];
  EXPECT_EQ(platform_.Read(file, buffer, 200), 200U);
  EXPECT_EQ(std::string(buffer, 200), bytes.substr(0, 200));
  EXPECT_EQ(platform_.Read(file, buffer, 200), 56U);
  EXPECT_EQ(std::string(buffer, 56), bytes.substr(200));
  EXPECT_EQ(platform_.Read(file, buffer, 200), 0U);
  EXPECT_EQ(platform_.Read(file, buffer, 200), 0U);
  platform_.Close(file);
}

TEST_F(FileContract, AnEmptyFileIsAtItsEnd) {
  disc_.File("VIDE.TXT");
  EXPECT_EQ(Contents(u"D:\\VIDE.TXT"), "");
}

TEST_F(FileContract, AFileIsReadTwiceAtATime) {
  disc_.File("A.TXT", "abcd");
  const FileHandle one = platform_.OpenRead(u"D:\\A.TXT");
  const FileHandle two = platform_.OpenRead(u"D:\\A.TXT");
  char unit = 0;
  EXPECT_EQ(platform_.Read(one, &unit, 1), 1U);
  EXPECT_EQ(platform_.Read(one, &unit, 1), 1U);
  EXPECT_EQ(unit, 'b');
  EXPECT_EQ(platform_.Read(two, &unit, 1), 1U);
  EXPECT_EQ(unit, 'a');
  platform_.Close(one);
  platform_.Close(two);
}

TEST_F(FileContract, WhatCannotBeReadRaises) {
  disc_.File("FICHIER.TXT");
  disc_.Directory("JEUX");
  EXPECT_EQ(ReadError(u"D:\\AUTRE.TXT"), ErrorNumber::kFileNotFound);
  EXPECT_EQ(ReadError(u"D:\\NULLEPART\\AUTRE.TXT"), ErrorNumber::kPathNotFound);
  EXPECT_EQ(ReadError(u"D:\\FICHIER.TXT\\AUTRE.TXT"), ErrorNumber::kPathNotFound);
  EXPECT_EQ(ReadError(u"Q:\\AUTRE.TXT"), ErrorNumber::kPathNotFound);
  EXPECT_EQ(ReadError(u"D:\\JEUX"), ErrorNumber::kPathFileAccess);
  EXPECT_EQ(ReadError(u"D:\\"), ErrorNumber::kPathFileAccess);
  EXPECT_EQ(ReadError(u""), ErrorNumber::kFileNotFound);
}

TEST_F(FileContract, NamesBeyondTheCodePageOpen) {
  Write(u"D:\\\u0444\u0430\u0439\u043B \U0001F4BF.txt", "disque");
  EXPECT_EQ(Contents(u"D:\\\u0424\u0410\u0419\u041B \U0001F4BF.TXT"), "disque");
  EXPECT_THAT(FindAll(u"D:\\*"), ElementsAre(u"\u0444\u0430\u0439\u043B \U0001F4BF.txt"));
}

// --- Writing ----------------------------------------------------------------------------------

TEST_F(FileContract, WritingMakesAFile) {
  disc_.Directory("Export");
  Write(u"D:\\EXPORT\\Table.csv", std::string("\0\r\n\xE9", 4));
  EXPECT_EQ(Contents(u"D:\\Export\\Table.csv"), std::string("\0\r\n\xE9", 4));
  EXPECT_THAT(FindAll(u"D:\\Export\\t*"), ElementsAre(u"Table.csv"));
}

TEST_F(FileContract, WritingEmptiesWhatWasThere) {
  disc_.File("Table.csv", "a longer text");
  Write(u"D:\\TABLE.CSV", "new");
  EXPECT_EQ(Contents(u"D:\\Table.csv"), "new");
  EXPECT_THAT(FindAll(u"D:\\*"), ElementsAre(u"Table.csv"));
  platform_.Close(platform_.OpenWrite(u"D:\\Table.csv"));
  EXPECT_EQ(Contents(u"D:\\Table.csv"), "");
}

TEST_F(FileContract, WritingEmptiesAHiddenFileAsWell) {
  disc_.File(".reglages", "former");
  disc_.Hide(".reglages");
  Write(u"D:\\.reglages", "new");
  EXPECT_EQ(Contents(u"D:\\.reglages"), "new");
}

TEST_F(FileContract, SuccessiveWritesFollowEachOther) {
  const FileHandle file = platform_.OpenWrite(u"D:\\A.TXT");
  platform_.Write(file, "abc", 3);
  platform_.Write(file, "", 0);
  platform_.Write(file, "def", 3);
  platform_.Close(file);
  EXPECT_EQ(Contents(u"D:\\A.TXT"), "abcdef");
}

TEST_F(FileContract, WhatCannotBeWrittenRaises) {
  disc_.Directory("JEUX");
  EXPECT_EQ(WriteError(u"D:\\NULLEPART\\A.TXT"), ErrorNumber::kPathNotFound);
  EXPECT_EQ(WriteError(u"Q:\\A.TXT"), ErrorNumber::kPathNotFound);
  EXPECT_EQ(WriteError(u"D:\\JEUX"), ErrorNumber::kPathFileAccess);
  EXPECT_EQ(WriteError(u"D:\\"), ErrorNumber::kPathFileAccess);
}

TEST_F(FileContract, ClosingNothingDoesNoHarm) {
  const FileHandle file = platform_.OpenWrite(u"D:\\A.TXT");
  EXPECT_NE(file, FileHandle::kInvalid);
  platform_.Close(FileHandle::kInvalid);
  platform_.Write(file, "abc", 3);
  platform_.Close(file);
  EXPECT_EQ(Contents(u"D:\\A.TXT"), "abc");
}

// --- Copying ----------------------------------------------------------------------------------

TEST_F(FileContract, CopiesToANewFile) {
  std::string contents;
  for (int number = 0; number < 50000; ++number) contents += std::to_string(number);
  disc_.File("SOURCE.BIN", contents);
  disc_.Directory("Copies");
  platform_.CopyFile(u"D:\\source.bin", u"D:\\COPIES\\Copie.bin");
  EXPECT_EQ(Contents(u"D:\\Copies\\Copie.bin"), contents);
  EXPECT_THAT(FindAll(u"D:\\Copies\\*"), ElementsAre(u".", u"..", u"Copie.bin"));
}

TEST_F(FileContract, CopiesOverALongerFile) {
  disc_.File("SOURCE.TXT", "new");
  disc_.File("Cible.txt", "a longer text");
  platform_.CopyFile(u"D:\\SOURCE.TXT", u"D:\\CIBLE.TXT");
  EXPECT_EQ(Contents(u"D:\\Cible.txt"), "new");
  EXPECT_EQ(FindAll(u"D:\\*").size(), 2U);
}

TEST_F(FileContract, CopiesAnEmptyFile) {
  disc_.File("VIDE.TXT");
  platform_.CopyFile(u"D:\\VIDE.TXT", u"D:\\COPIE.TXT");
  EXPECT_EQ(Contents(u"D:\\COPIE.TXT"), "");
}

TEST_F(FileContract, ACopyThatFailsLeavesNothingBehind) {
  disc_.File("SOURCE.TXT", "new");
  disc_.Directory("JEUX");
  EXPECT_EQ(CopyError(u"D:\\AUTRE.TXT", u"D:\\COPIE.TXT"), ErrorNumber::kFileNotFound);
  EXPECT_EQ(CopyError(u"D:\\NULLEPART\\A.TXT", u"D:\\COPIE.TXT"), ErrorNumber::kPathNotFound);
  EXPECT_EQ(CopyError(u"D:\\JEUX", u"D:\\COPIE.TXT"), ErrorNumber::kPathFileAccess);
  EXPECT_EQ(CopyError(u"D:\\SOURCE.TXT", u"D:\\NULLEPART\\A.TXT"), ErrorNumber::kPathNotFound);
  EXPECT_EQ(CopyError(u"D:\\SOURCE.TXT", u"D:\\JEUX"), ErrorNumber::kPathFileAccess);
  EXPECT_THAT(FindAll(u"D:\\*"), UnorderedElementsAre(u"JEUX", u"SOURCE.TXT"));
  EXPECT_THAT(FindAll(u"D:\\JEUX\\*"), ElementsAre(u".", u".."));
}

// --- Deleting ---------------------------------------------------------------------------------

TEST_F(FileContract, DeletesAFile) {
  disc_.File("Jeux/A.TXT");
  disc_.File("Jeux/B.TXT");
  platform_.DeleteFile(u"D:\\JEUX\\a.txt");
  EXPECT_FALSE(Exists(u"D:\\JEUX\\A.TXT"));
  EXPECT_THAT(FindAll(u"D:\\JEUX\\*"), ElementsAre(u".", u"..", u"B.TXT"));
}

TEST_F(FileContract, WhatCannotBeDeletedRaises) {
  disc_.Directory("JEUX");
  EXPECT_EQ(DeleteError(u"D:\\AUTRE.TXT"), ErrorNumber::kFileNotFound);
  EXPECT_EQ(DeleteError(u"D:\\NULLEPART\\AUTRE.TXT"), ErrorNumber::kFileNotFound);
  EXPECT_EQ(DeleteError(u"D:\\JEUX"), ErrorNumber::kPathFileAccess);
  EXPECT_TRUE(Exists(u"D:\\JEUX"));
}

// --- Putting a file in another's place, directories -------------------------------------------

TEST_F(FileContract, AFileTakesTheNameOfAnotherOne) {
  disc_.File("A.TXT", "ancien");
  disc_.File("NEUF.TMP", "nouveau");
  platform_.PutInPlace(u"D:\\NEUF.TMP", u"D:\\a.txt");
  EXPECT_EQ(Contents(u"D:\\A.TXT"), "nouveau");
  EXPECT_EQ(FindAll(u"D:\\*").size(), 1u);
  platform_.PutInPlace(u"D:\\A.TXT", u"D:\\B.TXT");
  EXPECT_EQ(Contents(u"D:\\B.TXT"), "nouveau");
  EXPECT_FALSE(Exists(u"D:\\A.TXT"));
}

TEST_F(FileContract, WhatCannotBePutInPlaceStays) {
  disc_.Directory("JEUX");
  disc_.File("NEUF.TMP", "nouveau");
  EXPECT_EQ(ErrorOf([&] { platform_.PutInPlace(u"D:\\NEUF.TMP", u"D:\\JEUX"); }),
            ErrorNumber::kPathFileAccess);
  EXPECT_EQ(ErrorOf([&] { platform_.PutInPlace(u"D:\\RIEN.TMP", u"D:\\A.TXT"); }),
            ErrorNumber::kFileNotFound);
  EXPECT_EQ(Contents(u"D:\\NEUF.TMP"), "nouveau");
}

TEST_F(FileContract, ADirectoryIsMadeOnce) {
  disc_.File("A.TXT", "x");
  EXPECT_TRUE(platform_.MakeDirectory(u"D:\\Neuf"));
  EXPECT_EQ(Status(u"D:\\NEUF").attributes & kAttributeDirectory, kAttributeDirectory);
  EXPECT_TRUE(platform_.MakeDirectory(u"D:\\Neuf"));
  EXPECT_FALSE(platform_.MakeDirectory(u"D:\\A.TXT"));
  EXPECT_FALSE(platform_.MakeDirectory(u"D:\\NULLEPART\\NEUF"));
  EXPECT_FALSE(platform_.MakeDirectory(u""));
}

// --- Read-only files --------------------------------------------------------------------------

TEST_F(FileContract, AReadOnlyFileIsNeitherWrittenReplacedNorDeleted) {
  disc_.File("A.TXT", "ancien");
  disc_.File("B.TXT", "nouveau");
  using std::filesystem::perms;
  std::filesystem::permissions(disc_.HostPath("A.TXT"),
                               perms::owner_write | perms::group_write | perms::others_write,
                               std::filesystem::perm_options::remove);
  EXPECT_TRUE(Status(u"D:\\A.TXT").attributes & kAttributeReadOnly);
  EXPECT_FALSE(Status(u"D:\\B.TXT").attributes & kAttributeReadOnly);
  EXPECT_EQ(DeleteError(u"D:\\A.TXT"), ErrorNumber::kPermissionDenied);
  EXPECT_EQ(WriteError(u"D:\\A.TXT"), ErrorNumber::kPermissionDenied);
  EXPECT_EQ(CopyError(u"D:\\B.TXT", u"D:\\A.TXT"), ErrorNumber::kPermissionDenied);
  try {
    platform_.OpenWrite(u"D:\\A.TXT");
  } catch (const RuntimeError& error) {
    EXPECT_EQ(platform_.FormatMessage(error.SystemCode()), u"L'accès est refusé.");
  }
  EXPECT_EQ(Contents(u"D:\\A.TXT"), "ancien");
  EXPECT_THAT(FindAll(u"D:\\*"), UnorderedElementsAre(u"A.TXT", u"B.TXT"));
}

// --- Names of any length ----------------------------------------------------------------------

TEST_F(FileContract, NamesLongerThan260CharactersWork) {
  Text directory = u"D:";
  std::string host;
  for (int level = 0; level < 12; ++level) {
    directory += u"\\Un dossier au nom tres long";
    host += "Un dossier au nom tres long/";
  }
  disc_.File(host + "Programme.exe", "abc");
  ASSERT_GT(directory.size(), 300U);
  EXPECT_EQ(Status(directory).attributes & kAttributeDirectory, kAttributeDirectory);
  EXPECT_THAT(FindAll(directory + u"\\*.EXE"), ElementsAre(u"Programme.exe"));
  EXPECT_THAT(FindAll(directory + u"\\programme.exe"), ElementsAre(u"Programme.exe"));
  EXPECT_EQ(Status(directory + u"\\PROGRAMME.EXE").length, 3);
  EXPECT_EQ(Contents(directory + u"\\Programme.exe"), "abc");
  platform_.CopyFile(directory + u"\\Programme.exe", directory + u"\\Copie.exe");
  EXPECT_EQ(Contents(directory + u"\\Copie.exe"), "abc");
  platform_.DeleteFile(directory + u"\\Copie.exe");
  EXPECT_THAT(FindAll(directory + u"\\*"), ElementsAre(u".", u"..", u"Programme.exe"));
}

}  // namespace
}  // namespace trovex::test
