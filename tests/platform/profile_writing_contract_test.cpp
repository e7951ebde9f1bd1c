// What a write makes of a private-profile file.
#include "tests/platform/profile_case.h"

namespace {

class ProfileWriting : public ProfileContract {};

struct WriteCase {
  const char* what;
  std::string text;
  LineList lines;  // after "k=v" of section S was written
};

TEST_F(ProfileWriting, MakesTheFile) {
  EXPECT_TRUE(Write("S", "k", "v"));
  EXPECT_EQ(Bytes(), "[S]\r\nk=v\r\n");
}

TEST_F(ProfileWriting, MakesTheFileForAnEmptyValueToo) {
  EXPECT_TRUE(Write("S", "k", ""));
  EXPECT_EQ(Bytes(), "[S]\r\nk=\r\n");
}

TEST_F(ProfileWriting, KeepsEveryOtherLine) {
  const std::vector<WriteCase> cases = {
      {"replaces the value", "[S]\r\na=1\r\nk=old\r\nb=2\r\n", {"[S]", "a=1", "k=v", "b=2"}},
      {"keeps the names as they stand", "[s]\r\nK=old\r\n", {"[s]", "K=v"}},
      {"adds a key to its section",
       "[S]\r\na=1\r\n[T]\r\nk=2\r\n",
       {"[S]", "a=1", "k=v", "[T]", "k=2"}},
      {"adds a key before blank lines",
       "[S]\r\na=1\r\n\r\n\r\n[T]\r\nk=2\r\n",
       {"[S]", "a=1", "k=v", "[T]", "k=2"}},
      {"adds a key to an empty section", "[S]\r\n[T]\r\nb=2\r\n", {"[S]", "k=v", "[T]", "b=2"}},
      {"adds a section", "[T]\r\nb=2\r\n", {"[T]", "b=2", "[S]", "k=v"}},
      {"fills an empty file", "", {"[S]", "k=v"}},
      {"changes the first of two keys", "[S]\r\nk=1\r\nk=2\r\n", {"[S]", "k=v", "k=2"}},
      {"adds to the first of two sections",
       "[S]\r\na=1\r\n[T]\r\n[S]\r\nk=2\r\n",
       {"[S]", "a=1", "k=v", "[T]", "[S]", "k=2"}},
      {"ends the last line first", "[S]\r\na=1", {"[S]", "a=1", "k=v"}},
      {"ends the last section first", "[S]", {"[S]", "k=v"}},
      {"ends a line before a new section", "[T]\r\nb=2", {"[T]", "b=2", "[S]", "k=v"}},
      {"changes a last line without an end", "[S]\r\nk=2", {"[S]", "k=v"}},
      {"keeps words and comments",
       "; note\r\nwords\r\n[S]\r\n; of a\r\na=1 ; tail\r\nk=1\r\n",
       {"; note", "words", "[S]", "; of a", "a=1 ; tail", "k=v"}},
      {"keeps a key without equals sign", "[S]\r\nlonely\r\nk=1\r\n", {"[S]", "lonely", "k=v"}},
      {"keeps quotes of others", "[S]\r\na=\" x \"\r\nk=1\r\n", {"[S]", "a=\" x \"", "k=v"}},
      {"keeps bytes of others",
       "[S]\r\na=\x01\x80\xE4\xFF\r\nk=1\r\n",
       {"[S]", "a=\x01\x80\xE4\xFF", "k=v"}},
      {"takes line feeds", "[S]\na=1\nk=2\n[T]\nb=1\n", {"[S]", "a=1", "k=v", "[T]", "b=1"}},
      {"takes carriage returns", "[S]\ra=1\rk=2\r[T]\rb=1\r", {"[S]", "a=1", "k=v", "[T]", "b=1"}},
  };
  for (const WriteCase& one : cases) {
    Put(one.text);
    EXPECT_TRUE(Write("S", "k", "v")) << one.what;
    EXPECT_EQ(Lines(), one.lines) << one.what;
  }
}

TEST_F(ProfileWriting, KeepsLinesOfOtherSpacingReadable) {
  Put("[S]\r\n  a = 1  \r\n\tb\t=\t2\r\nk=1\r\n");
  EXPECT_TRUE(Write("S", "k", "v"));
  EXPECT_EQ(Read("S", "a"), "1");
  EXPECT_EQ(Read("S", "b"), "2");
  EXPECT_EQ(Read("S", "k"), "v");
}

TEST_F(ProfileWriting, KeepsAVeryLongLine) {
  const std::string line = "long=" + std::string(70000, 'y');
  Put("[S]\r\n" + line + "\r\nk=1\r\n");
  EXPECT_TRUE(Write("S", "k", "v"));
  EXPECT_EQ(Lines(), (LineList{"[S]", line, "k=v"}));
}

TEST_F(ProfileWriting, ReadsBackWhatItWrote) {
  std::string high;
  for (int code = 0xA1; code <= 0xFF; ++code) high += static_cast<char>(code);
  for (const std::string& value :
       {std::string("0"), std::string(""), std::string("a b"), std::string("a=b;c"), high,
        std::string("C:\\Sorvane\\x.txt"), std::string(255, 'x'), std::string("[x]")}) {
    EXPECT_TRUE(Write("S", "k", value));
    EXPECT_EQ(Read("S", "k"), value);
  }
}

TEST_F(ProfileWriting, WritesAllOfALongValue) {
  EXPECT_TRUE(Write("S", "k", std::string(3000, 'q')));
  EXPECT_EQ(Read("S", "k"), std::string(255, 'q'));
  EXPECT_EQ(Read("S", "k", 4096), std::string(3000, 'q'));
}

TEST_F(ProfileWriting, ReadsBackWithoutBlanksAroundAndQuotes) {
  EXPECT_TRUE(Write("S", "k", "  v  "));
  EXPECT_EQ(Read("S", "k"), "v");
  EXPECT_TRUE(Write("S", "k", "\" v \""));
  EXPECT_EQ(Read("S", "k"), " v ");
}

TEST_F(ProfileWriting, TakesBlanksBehindTheKeyForNothing) {
  Put("[S]\r\nk=1\r\n");
  EXPECT_TRUE(Write("S", "k  ", "v"));
  EXPECT_EQ(Read("S", "k"), "v");
  EXPECT_EQ(Lines().size(), 2u);
}

TEST_F(ProfileWriting, EmptiesAValue) {
  Put("[S]\r\nk=1\r\nl=2\r\n");
  EXPECT_TRUE(Write("S", "k", ""));
  EXPECT_EQ(Lines(), (LineList{"[S]", "k=", "l=2"}));
}

TEST_F(ProfileWriting, KeepsManyKeysInTheOrderOfTheirFirstWrite) {
  LineList expected = {"[S]"};
  for (int i = 0; i < 60; ++i) {
    const std::string key = "key" + std::to_string(i);
    EXPECT_TRUE(Write("S", key, "first"));
    EXPECT_TRUE(Write("S", key, std::to_string(i)));
    expected.push_back(key + "=" + std::to_string(i));
  }
  EXPECT_EQ(Lines(), expected);
}

TEST_F(ProfileWriting, WritesIntoWideTextAsWideText) {
  Put(WithNuls("\xFF\xFE[\0S\0]\0\r\0\n\0k\0=\0v\0\r\0\n\0"));
  EXPECT_TRUE(Write("S", "k", "w"));
  EXPECT_EQ(Bytes(), WithNuls("\xFF\xFE[\0S\0]\0\r\0\n\0k\0=\0w\0\r\0\n\0"));
}

TEST_F(ProfileWriting, KeepsWhatAnotherWriterWroteJustBefore) {
  EXPECT_TRUE(Write("S", "a", "mine"));
  Put("[S]\r\na=theirs\r\nb=theirs\r\n");
  EXPECT_TRUE(Write("S", "k", "mine"));
  EXPECT_EQ(Lines(), (LineList{"[S]", "a=theirs", "b=theirs", "k=mine"}));
}

TEST_F(ProfileWriting, IsOnTheDiskAtOnce) {
  for (int i = 0; i < 20; ++i) {
    EXPECT_TRUE(Write("S", "k", std::to_string(i)));
    EXPECT_EQ(ports().files.Read(file_), "[S]\r\nk=" + std::to_string(i) + "\r\n");
  }
}

class ProfileWritingFailure : public ProfileContract {
 protected:
  static constexpr char kText[] = "[S]\r\nk=1\r\nlong=a long line\r\n";

  // A write fails and all is as before.
  void ExpectFailure() {
    EXPECT_FALSE(Write("S", "k", "v"));
    EXPECT_FALSE(Write("T", "new", "v"));
  }

  void ExpectAsItWas() {
    EXPECT_EQ(Bytes(), kText);
    EXPECT_EQ(Read("S", "k"), "1");
    EXPECT_EQ(Read("T", "new"), "");
  }
};

TEST_F(ProfileWritingFailure, LeavesALockedFileAsItWas) {
  Put(kText);
  machine_->LockFile(file_);
  ExpectFailure();
  machine_->UnlockFile(file_);
  ExpectAsItWas();
}

TEST_F(ProfileWritingFailure, LeavesAFileAsItWasThatOthersOnlyLetRead) {
  Put(kText);
  machine_->LockForWriting(file_);
  ExpectFailure();
  machine_->UnlockFile(file_);
  ExpectAsItWas();
}

TEST_F(ProfileWritingFailure, LeavesAReadOnlyFileAsItWas) {
  Put(kText);
  machine_->SetReadOnly(file_, true);
  ExpectFailure();
  ExpectAsItWas();
  machine_->SetReadOnly(file_, false);
  EXPECT_TRUE(Write("S", "k", "v"));
  EXPECT_EQ(Read("S", "k"), "v");
}

TEST_F(ProfileWritingFailure, MakesNoFolder) {
  file_ = In("Missing\\Profile.ini");
  ExpectFailure();
  EXPECT_FALSE(ports().files.FolderExists(In("Missing")));
}

TEST_F(ProfileWritingFailure, LeavesAFolderInPlaceOfTheFile) {
  ASSERT_TRUE(ports().files.MakeFolder(file_));
  ExpectFailure();
  EXPECT_TRUE(ports().files.FolderExists(file_));
}

TEST_F(ProfileWritingFailure, DoesNotComeThroughLater) {
  Put(kText);
  machine_->LockFile(file_);
  EXPECT_FALSE(Write("S", "k", "late"));
  machine_->UnlockFile(file_);
  EXPECT_TRUE(Write("S", "other", "v"));
  EXPECT_EQ(Read("S", "k"), "1");
}

}  // namespace
