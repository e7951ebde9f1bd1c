// What the built executables say of themselves: safety marks, libraries, version, manifest, icon.
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace {

std::string WindowsPath(std::string path) {
  std::replace(path.begin(), path.end(), '/', '\\');
  return path.starts_with('\\') ? "Z:" + path : path;
}

// A file loaded as data, with the offsets of a loaded image.
class BuiltFile {
 public:
  explicit BuiltFile(const std::string& path)
      : module_(LoadLibraryExA(path.c_str(), nullptr,
                               LOAD_LIBRARY_AS_IMAGE_RESOURCE | LOAD_LIBRARY_AS_DATAFILE)) {}
  BuiltFile(const BuiltFile&) = delete;
  BuiltFile& operator=(const BuiltFile&) = delete;
  ~BuiltFile() {
    if (module_) FreeLibrary(module_);
  }
  explicit operator bool() const { return module_ != nullptr; }
  HMODULE module() const { return module_; }

  std::string Resource(LPCSTR name, LPCSTR type) const {
    const HRSRC found = FindResourceA(module_, name, type);
    if (!found) return "";
    const HGLOBAL loaded = LoadResource(module_, found);
    return std::string(static_cast<const char*>(LockResource(loaded)),
                       SizeofResource(module_, found));
  }

 private:
  HMODULE module_;
};

std::string Bytes(const std::string& path) {
  std::string bytes;
  const HANDLE file =
      CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return bytes;
  bytes.resize(GetFileSize(file, nullptr));
  DWORD read = 0;
  ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
  CloseHandle(file);
  return bytes;
}

// The headers of an executable file, whatever its width.
struct Headers {
  WORD machine = 0;
  WORD characteristics = 0;
  WORD subsystem = 0;
  bool has_relocations = false;
  bool has_symbols = false;
  bool has_writable_code = false;
  std::vector<std::string> libraries;
};

template <typename NtHeaders>
Headers ReadHeaders(const std::string& bytes, const NtHeaders& nt) {
  const auto* sections = IMAGE_FIRST_SECTION(&nt);
  const auto at = [&](DWORD address) -> const char* {
    for (int i = 0; i < nt.FileHeader.NumberOfSections; ++i) {
      const auto& section = sections[i];
      if (address >= section.VirtualAddress &&
          address < section.VirtualAddress + section.SizeOfRawData) {
        return bytes.data() + section.PointerToRawData + (address - section.VirtualAddress);
      }
    }
    return nullptr;
  };
  const auto& directories = nt.OptionalHeader.DataDirectory;
  Headers headers;
  headers.machine = nt.FileHeader.Machine;
  headers.characteristics = nt.OptionalHeader.DllCharacteristics;
  headers.has_relocations = directories[IMAGE_DIRECTORY_ENTRY_BASERELOC].Size > 0;
  headers.subsystem = nt.OptionalHeader.Subsystem;
  headers.has_symbols = nt.FileHeader.NumberOfSymbols > 0;
  for (int i = 0; i < nt.FileHeader.NumberOfSections; ++i) {
    constexpr DWORD kWritableCode = IMAGE_SCN_MEM_WRITE | IMAGE_SCN_MEM_EXECUTE;
    const bool both = (sections[i].Characteristics & kWritableCode) == kWritableCode;
    headers.has_writable_code = headers.has_writable_code || both;
  }
  const char* imports = at(directories[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress);
  for (auto* entry = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(imports);
       entry && entry->Name != 0; ++entry) {
    headers.libraries.emplace_back(at(entry->Name));
  }
  return headers;
}

Headers HeadersOf(const std::string& path) {
  const std::string bytes = Bytes(path);
  const auto& dos = *reinterpret_cast<const IMAGE_DOS_HEADER*>(bytes.data());
  const auto& nt = *reinterpret_cast<const IMAGE_NT_HEADERS32*>(bytes.data() + dos.e_lfanew);
  if (nt.OptionalHeader.Magic == IMAGE_NT_OPTIONAL_HDR32_MAGIC) return ReadHeaders(bytes, nt);
  return ReadHeaders(bytes, reinterpret_cast<const IMAGE_NT_HEADERS64&>(nt));
}

class BuiltFileTest : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    path_ = WindowsPath(GetParam());
    if (GetFileAttributesA(path_.c_str()) == INVALID_FILE_ATTRIBUTES) {
      GTEST_SKIP() << path_ << " was not built in this run";
    }
  }
  std::string path_;
};

TEST_P(BuiltFileTest, HasARandomAddressAndDataThatCannotBeRun) {
  const Headers headers = HeadersOf(path_);
  EXPECT_TRUE(headers.characteristics & IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE);
  EXPECT_TRUE(headers.characteristics & IMAGE_DLLCHARACTERISTICS_NX_COMPAT);
  EXPECT_TRUE(headers.has_relocations);
  if (headers.machine == IMAGE_FILE_MACHINE_AMD64) {
    EXPECT_TRUE(headers.characteristics & IMAGE_DLLCHARACTERISTICS_HIGH_ENTROPY_VA);
  }
}

TEST_P(BuiltFileTest, HasNoSectionThatCanBeWrittenAndRun) {
  EXPECT_FALSE(HeadersOf(path_).has_writable_code);
}

TEST_P(BuiltFileTest, IsStrippedAndOpensNoConsole) {
  const Headers headers = HeadersOf(path_);
  EXPECT_FALSE(headers.has_symbols);
  EXPECT_EQ(headers.subsystem, IMAGE_SUBSYSTEM_WINDOWS_GUI);
}

TEST_P(BuiltFileTest, NeedsOnlyLibrariesOfTheSystem) {
  constexpr std::string_view kSystem[] = {
      "ADVAPI32.dll", "COMCTL32.DLL", "COMCTL32.dll", "GDI32.dll",  "KERNEL32.dll",
      "MSIMG32.dll",  "msvcrt.dll",   "ole32.dll",    "PSAPI.DLL",  "SHELL32.dll",
      "USER32.dll",   "VERSION.dll",  "WININET.dll",  "UxTheme.dll"};
  for (const std::string& library : HeadersOf(path_).libraries) {
    EXPECT_TRUE(std::any_of(std::begin(kSystem), std::end(kSystem), [&](std::string_view name) {
      return lstrcmpiA(library.c_str(), std::string(name).c_str()) == 0;
    })) << library;
  }
}

TEST_P(BuiltFileTest, IsAtMostOneAndAHalfMegabytes) {
  EXPECT_LE(Bytes(path_).size(), 1'500'000u);
}

TEST_P(BuiltFileTest, CarriesAManifestForTheSupportedSystems) {
  const BuiltFile file(path_);
  ASSERT_TRUE(file);
  const std::string manifest = file.Resource(MAKEINTRESOURCEA(1), MAKEINTRESOURCEA(24));
  for (const char* part :
       {"asInvoker", "Microsoft.Windows.Common-Controls", "6.0.0.0", "PerMonitor",
        "{35138b9a-5d96-4fbd-8e2d-a2440225f93a}",     // Windows 7
        "{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}"}) {  // Windows 10 and 11
    EXPECT_NE(std::string::npos, manifest.find(part)) << part << " in\n" << manifest;
  }
}

TEST_P(BuiltFileTest, HasAnIconOfItsOwn) {
  const BuiltFile file(path_);
  ASSERT_TRUE(file);
  bool found = false;
  EnumResourceNamesA(
      file.module(), MAKEINTRESOURCEA(14),
      [](HMODULE, LPCSTR, LPSTR, LONG_PTR seen) -> BOOL {
        *reinterpret_cast<bool*>(seen) = true;
        return FALSE;
      },
      reinterpret_cast<LONG_PTR>(&found));
  EXPECT_TRUE(found);
}

TEST_P(BuiltFileTest, TellsItsVersionInEveryField) {
  const DWORD size = GetFileVersionInfoSizeA(path_.c_str(), nullptr);
  ASSERT_GT(size, 0u);
  std::vector<char> block(size);
  ASSERT_TRUE(GetFileVersionInfoA(path_.c_str(), 0, size, block.data()));
  for (const char* field :
       {"CompanyName", "FileDescription", "FileVersion", "InternalName", "LegalCopyright",
        "OriginalFilename", "ProductName", "ProductVersion"}) {
    char* value = nullptr;
    UINT length = 0;
    EXPECT_TRUE(VerQueryValueA(block.data(),
                               ("\\StringFileInfo\\040904e4\\" + std::string(field)).c_str(),
                               reinterpret_cast<void**>(&value), &length) &&
                length > 1)
        << field;
  }
}

INSTANTIATE_TEST_SUITE_P(EachWidth, BuiltFileTest,
                         testing::Values(SORVANE_EXECUTABLE, SORVANE_EXECUTABLE_X86),
                         [](const auto& file) { return file.index == 0 ? "X64" : "X86"; });

}  // namespace
