// What the built executable tells the system of itself: protections, needs, manifest, version,
// icon.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace {

using ::testing::HasSubstr;

constexpr std::size_t kMostBytes = 3 * 1024 * 1024 / 2;

const std::string& Bytes() {
  static const std::string bytes = [] {
    std::ifstream file(SORVANE_TRAY, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
  }();
  return bytes;
}

template <typename Record>
Record At(std::size_t offset) {
  Record record{};
  if (offset + sizeof(Record) <= Bytes().size()) {
    std::memcpy(&record, Bytes().data() + offset, sizeof(Record));
  }
  return record;
}

std::size_t HeaderOffset() {
  return static_cast<std::size_t>(At<IMAGE_DOS_HEADER>(0).e_lfanew);
}

IMAGE_NT_HEADERS Headers() {
  return At<IMAGE_NT_HEADERS>(HeaderOffset());
}

std::vector<IMAGE_SECTION_HEADER> Sections() {
  const IMAGE_NT_HEADERS headers = Headers();
  const std::size_t first = HeaderOffset() + offsetof(IMAGE_NT_HEADERS, OptionalHeader) +
                            headers.FileHeader.SizeOfOptionalHeader;
  std::vector<IMAGE_SECTION_HEADER> sections;
  for (std::size_t i = 0; i < headers.FileHeader.NumberOfSections; ++i) {
    sections.push_back(At<IMAGE_SECTION_HEADER>(first + i * sizeof(IMAGE_SECTION_HEADER)));
  }
  return sections;
}

std::string SectionName(const IMAGE_SECTION_HEADER& section) {
  const char* name = reinterpret_cast<const char*>(section.Name);
  return std::string(name, strnlen(name, sizeof(section.Name)));
}

std::size_t OffsetOf(std::uint32_t address) {
  for (const IMAGE_SECTION_HEADER& section : Sections()) {
    const std::uint32_t start = section.VirtualAddress;
    if (address >= start && address < start + section.SizeOfRawData) {
      return address - start + section.PointerToRawData;
    }
  }
  return Bytes().size();
}

// The executable as data, for its resources.
class Module {
 public:
  Module() : module_(LoadLibraryExA(SORVANE_TRAY, nullptr, LOAD_LIBRARY_AS_DATAFILE)) {}
  ~Module() { FreeLibrary(module_); }
  Module(const Module&) = delete;
  Module& operator=(const Module&) = delete;

  std::string Resource(const char* type, const char* name) const {
    const HRSRC found = FindResourceA(module_, name, type);
    if (found == nullptr) return {};
    const void* data = LockResource(LoadResource(module_, found));
    return std::string(static_cast<const char*>(data), SizeofResource(module_, found));
  }

 private:
  HMODULE module_;
};

TEST(ExecutableFacts, LiesAtAnAddressOfItsOwnWithDataThatCannotBeRun) {
  const WORD flags = Headers().OptionalHeader.DllCharacteristics;
  EXPECT_TRUE(flags & IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE);
  EXPECT_TRUE(flags & IMAGE_DLLCHARACTERISTICS_NX_COMPAT);
  EXPECT_FALSE(Headers().FileHeader.Characteristics & IMAGE_FILE_RELOCS_STRIPPED);
  EXPECT_GT(Headers().OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_BASERELOC].Size, 0u);
#ifdef _WIN64
  constexpr WORD kHighEntropy = 0x0020;
  EXPECT_TRUE(flags & kHighEntropy);
#endif
}

TEST(ExecutableFacts, HasNoSectionThatCanBeWrittenAndRun) {
  for (const IMAGE_SECTION_HEADER& section : Sections()) {
    const bool written = (section.Characteristics & IMAGE_SCN_MEM_WRITE) != 0;
    const bool run = (section.Characteristics & IMAGE_SCN_MEM_EXECUTE) != 0;
    EXPECT_FALSE(written && run) << SectionName(section);
  }
}

TEST(ExecutableFacts, IsSmallAndStripped) {
  EXPECT_GT(Bytes().size(), 100000u);
  EXPECT_LE(Bytes().size(), kMostBytes);
  EXPECT_EQ(Headers().FileHeader.NumberOfSymbols, 0u);
  for (const IMAGE_SECTION_HEADER& section : Sections()) {
    EXPECT_NE(SectionName(section).substr(0, 6), ".debug");
  }
}

TEST(ExecutableFacts, IsAProgramOfWindowsWithoutAConsole) {
  EXPECT_EQ(Headers().OptionalHeader.Subsystem, IMAGE_SUBSYSTEM_WINDOWS_GUI);
}

TEST(ExecutableFacts, NeedsOnlyLibrariesOfTheSystem) {
  constexpr std::string_view kSystem[] = {
      "advapi32.dll", "comctl32.dll", "gdi32.dll",    "kernel32.dll", "msvcrt.dll",
      "ole32.dll",    "psapi.dll",    "shell32.dll",  "user32.dll",   "version.dll",
      "wininet.dll",  "uxtheme.dll",  "oleaut32.dll", "winmm.dll"};
  const IMAGE_DATA_DIRECTORY imports =
      Headers().OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  std::size_t count = 0;
  for (std::size_t at = OffsetOf(imports.VirtualAddress);; at += sizeof(IMAGE_IMPORT_DESCRIPTOR)) {
    const auto import = At<IMAGE_IMPORT_DESCRIPTOR>(at);
    if (import.Name == 0) break;
    std::string name = Bytes().c_str() + OffsetOf(import.Name);
    for (char& letter : name) letter = static_cast<char>(tolower(letter));
    EXPECT_NE(std::find(std::begin(kSystem), std::end(kSystem), name), std::end(kSystem)) << name;
    ++count;
  }
  EXPECT_GT(count, 3u);
}

TEST(ExecutableFacts, AsksForNoRightsAndKnowsItsScreensAndSystems) {
  const std::string manifest = Module().Resource(MAKEINTRESOURCEA(24), MAKEINTRESOURCEA(1));
  EXPECT_THAT(manifest, HasSubstr("level=\"asInvoker\""));
  EXPECT_THAT(manifest, HasSubstr("Microsoft.Windows.Common-Controls\" version=\"6.0.0.0\""));
  EXPECT_THAT(manifest, HasSubstr("PerMonitorV2"));
  EXPECT_THAT(manifest, HasSubstr("true/pm"));
  for (const char* system :
       {"{35138b9a-5d96-4fbd-8e2d-a2440225f93a}", "{4a2f28e3-53b9-4441-ba9c-d69d4a4a6e38}",
        "{1f676c76-80e1-4239-95bb-83d0f6d0da78}", "{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}"}) {
    EXPECT_THAT(manifest, HasSubstr(system));
  }
}

TEST(ExecutableFacts, TellsItsVersionInFull) {
  DWORD ignored = 0;
  std::vector<char> version(GetFileVersionInfoSizeA(SORVANE_TRAY, &ignored));
  ASSERT_FALSE(version.empty());
  ASSERT_TRUE(
      GetFileVersionInfoA(SORVANE_TRAY, 0, static_cast<DWORD>(version.size()), version.data()));
  struct Row {
    const char* name;
    const char* value;
  };
  constexpr Row kRows[] = {{"CompanyName", "Bellwick-Labs"},
                           {"FileDescription", "Sorvane Classic tray agent"},
                           {"FileVersion", "1.0.0.0"},
                           {"InternalName", "SorvaneETray"},
                           {"LegalCopyright", "Copyright Bellwick-Labs"},
                           {"OriginalFilename", "SorvaneETray.exe"},
                           {"ProductName", "Sorvane Classic"},
                           {"ProductVersion", "1.0.0.0"}};
  for (const Row& row : kRows) {
    void* text = nullptr;
    UINT length = 0;
    const std::string path = std::string("\\StringFileInfo\\040904E4\\") + row.name;
    ASSERT_TRUE(VerQueryValueA(version.data(), path.c_str(), &text, &length)) << row.name;
    EXPECT_STREQ(static_cast<const char*>(text), row.value);
  }
  void* fixed = nullptr;
  UINT length = 0;
  ASSERT_TRUE(VerQueryValueA(version.data(), "\\", &fixed, &length));
  EXPECT_EQ(static_cast<const VS_FIXEDFILEINFO*>(fixed)->dwFileVersionMS, 0x00010000u);
}

TEST(ExecutableFacts, ShowsAnIconInSeveralSizes) {
  const std::string group = Module().Resource(RT_GROUP_ICON, "APP");
  // A header of three 16-bit words, the last being the count, then 14 bytes for each size.
  ASSERT_GE(group.size(), 6u);
  const auto count = static_cast<std::size_t>(static_cast<unsigned char>(group[4]));
  EXPECT_GE(count, 3u);
  ASSERT_EQ(group.size(), 6 + 14 * count);
  bool small = false;
  for (std::size_t i = 0; i < count; ++i) small = small || group[6 + 14 * i] == 16;
  EXPECT_TRUE(small);
}

}  // namespace
