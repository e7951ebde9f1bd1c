// What a read of a private-profile file gives, in every corner that several systems agree on.
#include "tests/platform/profile_case.h"

namespace {

struct ReadCase {
  const char* what;
  std::string text;
  std::string section;
  std::string key;
  std::string value;
};

class ProfileReading : public ProfileContract {
 protected:
  void ExpectAll(const std::vector<ReadCase>& cases) {
    for (const ReadCase& one : cases) {
      Put(one.text);
      EXPECT_EQ(Read(one.section, one.key), one.value) << one.what;
    }
  }
};

TEST_F(ProfileReading, FindsSectionAndKeyWithoutRegardToCase) {
  ExpectAll({{"as written", "[S]\r\nk=v\r\n", "S", "k", "v"},
             {"section", "[sEcTioN]\r\nk=v\r\n", "SeCtIOn", "k", "v"},
             {"key", "[S]\r\nStAtUs=v\r\n", "S", "sTaTuS", "v"},
             {"the value keeps its case", "[S]\r\nk=VaLuE\r\n", "S", "K", "VaLuE"}});
}

TEST_F(ProfileReading, LeavesOutBlanksAroundKeysAndValues) {
  ExpectAll({{"around the equals sign", "[S]\r\nk = v\r\n", "S", "k", "v"},
             {"before the key", "[S]\r\n   k=v\r\n", "S", "k", "v"},
             {"behind the value", "[S]\r\nk=v   \r\n", "S", "k", "v"},
             {"inside the value they stay", "[S]\r\nk=a  b\r\n", "S", "k", "a  b"},
             {"inside the key they stay", "[S]\r\na  b=v\r\n", "S", "a  b", "v"},
             {"tabs", "[S]\r\n\tk\t=\tv\t\r\n", "S", "k", "v"},
             {"behind the key asked for", "[S]\r\nk=v\r\n", "S", "k  ", "v"},
             {"behind both keys", "[S]\r\nk  =v\r\n", "S", "k ", "v"},
             {"before the section", "  [S]\r\nk=v\r\n", "S", "k", "v"},
             {"nothing but blanks", "[S]\r\nk=    \r\n", "S", "k", ""}});
}

TEST_F(ProfileReading, TakesOffOnePairOfQuotes) {
  ExpectAll({{"double", "[S]\r\nk=\"v\"\r\n", "S", "k", "v"},
             {"single", "[S]\r\nk='v'\r\n", "S", "k", "v"},
             {"blanks inside stay", "[S]\r\nk= \" v \" \r\n", "S", "k", " v "},
             {"only the outer pair", "[S]\r\nk=\"\"v\"\"\r\n", "S", "k", "\"v\""},
             {"one of another kind inside", "[S]\r\nk=\"'v'\"\r\n", "S", "k", "'v'"},
             {"nothing inside", "[S]\r\nk=\"\"\r\n", "S", "k", ""},
             {"kinds that differ", "[S]\r\nk='v\"\r\n", "S", "k", "'v\""},
             {"no closing one", "[S]\r\nk=\"v\r\n", "S", "k", "\"v"},
             {"no opening one", "[S]\r\nk=v\"\r\n", "S", "k", "v\""},
             {"one alone", "[S]\r\nk=\"\r\n", "S", "k", "\""},
             {"text behind", "[S]\r\nk=\"a\"b\r\n", "S", "k", "\"a\"b"},
             {"in the middle", "[S]\r\nk=a\"b\"c\r\n", "S", "k", "a\"b\"c"}});
}

TEST_F(ProfileReading, TakesTheFirstOfDuplicates) {
  ExpectAll({{"keys", "[S]\r\nk=1\r\nk=2\r\n", "S", "k", "1"},
             {"keys of different case", "[S]\r\nK=1\r\nk=2\r\n", "S", "k", "1"},
             {"an empty first one", "[S]\r\nk=\r\nk=2\r\n", "S", "k", ""},
             {"sections", "[S]\r\nk=1\r\n[T]\r\n[S]\r\nk=2\r\n", "S", "k", "1"}});
}

TEST_F(ProfileReading, LooksOnlyIntoTheFirstOfRepeatedSections) {
  ExpectAll({{"key only in the second", "[S]\r\na=1\r\n[S]\r\nk=2\r\n", "S", "k", ""},
             {"first one empty", "[S]\r\n[S]\r\nk=2\r\n", "S", "k", ""},
             {"another between", "[S]\r\n[T]\r\nx=1\r\n[S]\r\nk=2\r\n", "S", "k", ""}});
}

TEST_F(ProfileReading, KeepsSectionsApart) {
  ExpectAll({{"same key in another", "[T]\r\nk=1\r\n[S]\r\nk=2\r\n", "S", "k", "2"},
             {"key of the section behind", "[S]\r\na=1\r\n[T]\r\nk=2\r\n", "S", "k", ""},
             {"key before all sections", "k=1\r\n[S]\r\nk=2\r\n", "S", "k", "2"},
             {"only before all sections", "k=1\r\n[S]\r\n", "S", "k", ""},
             {"name that begins alike", "[ST]\r\nk=1\r\n[S]\r\nk=2\r\n", "S", "k", "2"},
             {"key that begins alike", "[S]\r\nkk=1\r\nk=2\r\n", "S", "k", "2"}});
}

TEST_F(ProfileReading, PassesOverComments) {
  ExpectAll({{"of a key", "[S]\r\n;k=1\r\nk=2\r\n", "S", "k", "2"},
             {"of a section", ";[S]\r\nk=1\r\n[S]\r\nk=2\r\n", "S", "k", "2"},
             {"behind blanks", "[S]\r\n  ; k=1\r\nk=2\r\n", "S", "k", "2"},
             {"a value has none", "[S]\r\nk=1 ; note\r\n", "S", "k", "1 ; note"}});
}

TEST_F(ProfileReading, PassesOverLinesThatAreNeither) {
  ExpectAll({{"blank lines", "\r\n\r\n[S]\r\n\r\n  \r\nk=v\r\n", "S", "k", "v"},
             {"words before the sections", "some words\r\n[S]\r\nk=v\r\n", "S", "k", "v"},
             {"words inside", "[S]\r\nsome words\r\nk=v\r\n", "S", "k", "v"},
             {"words behind a section", "[S] words\r\nk=v\r\n", "S", "k", "v"}});
}

TEST_F(ProfileReading, SplitsAtTheFirstEqualsSign) {
  ExpectAll({{"two of them", "[S]\r\nk=a=b\r\n", "S", "k", "a=b"},
             {"at the end", "[S]\r\nk=a=\r\n", "S", "k", "a="},
             {"side by side", "[S]\r\nk==a\r\n", "S", "k", "=a"}});
}

TEST_F(ProfileReading, TakesAnyEndOfLine) {
  ExpectAll({{"line feeds", "[S]\nj=1\nk=v\nl=2\n", "S", "k", "v"},
             {"carriage returns", "[S]\rj=1\rk=v\rl=2\r", "S", "k", "v"},
             {"both, turned", "[S]\n\rj=1\n\rk=v\n\r", "S", "k", "v"},
             {"a return too many", "[S]\r\r\nj=1\r\r\nk=v\r\r\n", "S", "k", "v"},
             {"mixed", "[S]\rj=1\nk=v\r\n", "S", "k", "v"},
             {"none behind the last line", "[S]\r\nk=v", "S", "k", "v"},
             {"none behind a section", "[S]\r\nk=v\r\n[T]", "S", "k", "v"},
             {"cut in the middle of a key", "[S]\r\nk=v\r\nStat", "S", "k", "v"}});
}

TEST_F(ProfileReading, GivesNothingForWhatIsMissing) {
  ExpectAll({{"empty file", "", "S", "k", ""},
             {"no such section", "[T]\r\nk=v\r\n", "S", "k", ""},
             {"no such key", "[S]\r\na=v\r\n", "S", "k", ""},
             {"key without a value", "[S]\r\nk=\r\n", "S", "k", ""},
             {"key without an equals sign", "[S]\r\nk\r\n", "S", "k", ""},
             {"file of line ends", "\r\n\r\n\r\n", "S", "k", ""}});
}

TEST_F(ProfileReading, GivesNothingWithoutAFile) {
  EXPECT_EQ(Read("S", "k"), "");
  EXPECT_EQ(ports().profile_files.ReadText(In("no\\such\\folder.ini"), "S", "k"), "");
}

TEST_F(ProfileReading, GivesNothingForAFolderInPlaceOfTheFile) {
  ASSERT_TRUE(ports().files.MakeFolder(file_));
  EXPECT_EQ(Read("S", "k"), "");
  EXPECT_EQ(ReadInt("S", "k"), 0);
}

TEST_F(ProfileReading, GivesNothingFromALockedFileAndItsValueAfterwards) {
  Put("[S]\r\nk=5\r\n");
  machine_->LockFile(file_);
  EXPECT_EQ(Read("S", "k"), "");
  EXPECT_EQ(ReadInt("S", "k"), 0);
  machine_->UnlockFile(file_);
  EXPECT_EQ(Read("S", "k"), "5");
}

TEST_F(ProfileReading, ReadsAFileThatOthersKeepOpenOrThatIsReadOnly) {
  Put("[S]\r\nk=v\r\n");
  machine_->LockForWriting(file_);
  EXPECT_EQ(Read("S", "k"), "v");
  machine_->UnlockFile(file_);
  machine_->SetReadOnly(file_, true);
  EXPECT_EQ(Read("S", "k"), "v");
}

TEST_F(ProfileReading, CutsToTheBuffer) {
  const auto value_of = [](std::size_t length) { return std::string(length, 'x'); };
  for (const std::size_t length : {1u, 254u, 255u, 256u, 300u, 1000u}) {
    Put("[S]\r\nk=" + value_of(length) + "\r\n");
    EXPECT_EQ(Read("S", "k").size(), std::min<std::size_t>(length, 255)) << length;
  }
  EXPECT_EQ(Read("S", "k", 1), "");
  EXPECT_EQ(Read("S", "k", 2), "x");
  EXPECT_EQ(Read("S", "k", 1024), value_of(1000));
}

TEST_F(ProfileReading, TakesQuotesOffBeforeItCuts) {
  Put("[S]\r\nk=\"" + std::string(254, 'x') + "\"\r\n");
  EXPECT_EQ(Read("S", "k"), std::string(254, 'x'));
  Put("[S]\r\nk=\"" + std::string(300, 'x') + "\"\r\n");
  EXPECT_EQ(Read("S", "k"), std::string(255, 'x'));
}

TEST_F(ProfileReading, ReadsBehindVeryLongLines) {
  Put("[S]\r\nlong=" + std::string(70000, 'y') + "\r\nk=v\r\n");
  EXPECT_EQ(Read("S", "k"), "v");
  EXPECT_EQ(Read("S", "long"), std::string(255, 'y'));
  EXPECT_EQ(Read("S", "long", 60000), std::string(59999, 'y'));
}

TEST_F(ProfileReading, FindsVeryLongNames) {
  const std::string name(500, 'n');
  ExpectAll({{"key", "[S]\r\n" + name + "=v\r\n", "S", name, "v"},
             {"one shorter", "[S]\r\n" + name + "=v\r\n", "S", name.substr(1), ""},
             {"section", "[" + name + "]\r\nk=v\r\n", name, "k", "v"}});
}

TEST_F(ProfileReading, GivesBytesOfTheCodePageAsTheyStand) {
  std::string high;
  for (int code = 0xA1; code <= 0xFF; ++code) high += static_cast<char>(code);
  ExpectAll({{"letters", "[S]\r\nk=" + high + "\r\n", "S", "k", high},
             {"with a key of such", "[S]\r\n\xE4\xF6=v\r\n", "S", "\xE4\xF6", "v"},
             {"with a section of such", "[\xFC]\r\nk=v\r\n", "\xFC", "k", "v"},
             {"quotes of typography", "[S]\r\nk=\x93v\x94\r\n", "S", "k", "\x93v\x94"}});
}

TEST_F(ProfileReading, GivesControlCharactersInsideAValue) {
  ExpectAll({{"low ones", "[S]\r\nk=a\x01\x02\x1F\x7F z\r\n", "S", "k", "a\x01\x02\x1F\x7F z"},
             {"a tab", "[S]\r\nk=a\tb\r\n", "S", "k", "a\tb"}});
}

TEST_F(ProfileReading, EndsAValueAtNulAndGoesOnBehindTheLine) {
  Put(WithNuls("[S]\r\nk=a\0b\r\nl=w\r\n"));
  const std::string value = Read("S", "k");
  EXPECT_EQ(value.substr(0, value.find('\0')), "a");
  EXPECT_EQ(Read("S", "l"), "w");
}

TEST_F(ProfileReading, GivesNothingFromRandomBytes) {
  std::string noise;
  std::uint32_t state = 12345;
  for (int i = 0; i < 20000; ++i) {
    state = state * 1664525u + 1013904223u;
    noise += static_cast<char>(state >> 24);
  }
  Put(noise);
  EXPECT_EQ(Read("Tolvex", "username"), "");
  EXPECT_EQ(ReadInt("Tolvex", "username"), 0);
}

TEST_F(ProfileReading, ReadsWideTextBehindItsByteOrderMark) {
  Put(WithNuls("\xFF\xFE[\0S\0]\0\r\0\n\0k\0=\0\xE4\0v\0\r\0\n\0"));
  EXPECT_EQ(Read("S", "k"), "\xE4v");
}

TEST_F(ProfileReading, FindsWhatStandsBehindAByteOrderMarkOnALineOfItsOwn) {
  Put("\xEF\xBB\xBF\r\n[S]\r\nk=v\r\n");
  EXPECT_EQ(Read("S", "k"), "v");
}

TEST_F(ProfileReading, SeesWhatAnotherWriterWrote) {
  ASSERT_TRUE(Write("S", "k", "first"));
  EXPECT_EQ(Read("S", "k"), "first");
  // The same size in the same second, over and over: nothing may come from a cache.
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    Put("[S]\r\nk=" + std::string(5, letter) + "\r\n");
    EXPECT_EQ(Read("S", "k"), std::string(5, letter));
    ASSERT_TRUE(ports().files.Replace(file_, "[S]\r\nk=" + std::string(4, letter) + "!\r\n"));
    EXPECT_EQ(Read("S", "k"), std::string(4, letter) + "!");
  }
}

TEST_F(ProfileReading, SeesThatTheFileIsGoneAndBack) {
  Put("[S]\r\nk=v\r\n");
  EXPECT_EQ(Read("S", "k"), "v");
  ASSERT_TRUE(ports().files.Remove(file_));
  EXPECT_EQ(Read("S", "k"), "");
  Put("[S]\r\nk=w\r\n");
  EXPECT_EQ(Read("S", "k"), "w");
}

TEST_F(ProfileReading, StartsARelativePathAtTheCurrentDirectory) {
  ASSERT_TRUE(ports().files.MakeFolder(In("Sub")));
  machine_->PutFile(In("Sub\\Profile.ini"), "[S]\r\nk=there\r\n");
  ASSERT_EQ(ports().files.ChangeDirectory(machine_->Folder()), 0u);
  EXPECT_EQ(ports().profile_files.ReadText("Sub\\Profile.ini", "S", "k"), "there");
  ASSERT_TRUE(ports().profile_files.WriteText("Sub\\Profile.ini", "S", "k", "new"));
  EXPECT_EQ(ports().profile_files.ReadText(In("Sub\\Profile.ini"), "S", "k"), "new");
}

}  // namespace
