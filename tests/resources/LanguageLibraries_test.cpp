// The shipping folder as built: its files, the texts of both language
// libraries and the pictures and font of Resource.DLL, read back through the
// same class the program uses.
#include <gtest/gtest.h>

#include <set>

#include "frame/CResDll.h"
#include "frame/modINI.h"
#include "resource_ids.h"
#include "support/TestSupport.h"
#include "toolkit/Element.h"

namespace {

using frame::CResDll;
using testing_support::DistFolder;

// clang-format off
constexpr int kEveryString[] = {
    IDS_PRODUCT_NAME, IDS_PRODUCT_TAGLINE, IDS_ABOUT_WEB_ADDRESS, IDS_COPYRIGHT, IDS_LANGUAGE_CODE,
    IDS_CURRENT_ICON_LABEL, IDS_NEW_ICON_LABEL, IDS_CHOOSER_TITLE, IDS_CHOOSER_FILTER,
    IDS_MISSING_FILE_TITLE, IDS_MISSING_FILE_PROMPT, IDS_BROWSE_BUTTON, IDS_APPLY_BUTTON,
    IDS_CONFIRM_TITLE, IDS_APPLY_PROMPT, IDS_DEFAULT_INFOTIP_LEAD, IDS_EXIT_BUTTON,
    IDS_TIP_NEW_ICON, IDS_TIP_CURRENT_ICON, IDS_TIP_ICON_LIST, IDS_TIP_BROWSE, IDS_TIP_RECENT,
    IDS_INFOTIP_LABEL, IDS_RECENT_LABEL, IDS_TIP_INFOTIP, IDS_STATUS_LOADING, IDS_STATUS_FEW_ICONS,
    IDS_STATUS_ICON_COUNT, IDS_DEFAULT_ICON_LABEL, IDS_REMOVE_PROMPT, IDS_TIP_ABOUT,
    IDS_LOW_DEPTH_NOTICE, IDS_LOW_DEPTH_QUESTION, IDS_RESTART_NOTICE, IDS_RESTART_QUESTION,
    IDS_EMPTY_COMMAND_LINE, IDS_TIP_DEFAULT_ICON, IDS_ABOUT_UPDATE, IDS_ABOUT_WEB_PAGE, IDS_HELP,
    IDS_ABOUT_OK, IDS_ABOUT_VERSION, IDS_ABOUT_THANKS, IDS_ABOUT_SUMMARY, IDS_ABOUT_RIGHTS,
    IDS_ABOUT_SETTINGS, IDS_SPLASH_INFO, IDS_ABOUT_CREDITS, IDS_ABOUT_CONTACT};
// clang-format on

std::string LoadFrom(const std::string& file, int id) {
  CResDll library;
  library.DllName(DistFolder() + file);
  return library.LoadDllString(id);
}

class LanguageLibrary : public ::testing::TestWithParam<const char*> {};

TEST_P(LanguageLibrary, HoldsEveryStringUncutAndAFilterOfFourDescriptionPatternPairs) {
  for (int id : kEveryString) {
    std::string text = LoadFrom(GetParam(), id);
    EXPECT_FALSE(text.empty()) << "string " << id;
    EXPECT_LT(text.size(), 255u) << "string " << id << " would be cut";
  }
  std::string filter = LoadFrom(GetParam(), IDS_CHOOSER_FILTER);
  std::vector<std::string> parts;
  std::size_t start = 0;
  for (std::size_t bar; (bar = filter.find('|', start)) != std::string::npos; start = bar + 1) {
    parts.push_back(filter.substr(start, bar - start));
  }
  parts.push_back(filter.substr(start));
  ASSERT_EQ(parts.size(), 8u) << filter;
  EXPECT_EQ(parts[1], "*.ico");
  EXPECT_EQ(parts[3], "*.exe");
  EXPECT_NE(parts[5].find("*.dll"), std::string::npos);
  EXPECT_EQ(parts[7], "*.*");
}

INSTANTIATE_TEST_SUITE_P(Shipped, LanguageLibrary,
                         ::testing::Values("LANG_ENG.DLL", "LANG_ESP.DLL"));

TEST(LanguageLibraries, AgreeOnTheMarkSectionNameTheirLanguageAndKeepSpanishAccents) {
  for (const char* file : {"LANG_ENG.DLL", "LANG_ESP.DLL"}) {
    EXPECT_EQ(LoadFrom(file, IDS_PRODUCT_NAME), "Morvane") << file;
  }
  EXPECT_EQ(LoadFrom("LANG_ENG.DLL", IDS_LANGUAGE_CODE), "en");
  EXPECT_EQ(LoadFrom("LANG_ESP.DLL", IDS_LANGUAGE_CODE), "es");
  EXPECT_NE(LoadFrom("LANG_ENG.DLL", IDS_EMPTY_COMMAND_LINE),
            LoadFrom("LANG_ESP.DLL", IDS_EMPTY_COMMAND_LINE));

  // Each accented letter must reach the program as one Windows-1252
  // character, not as a UTF-8 pair.
  std::string all;
  for (int id : kEveryString) all += LoadFrom("LANG_ESP.DLL", id);
  EXPECT_NE(all.find_first_of("\xE1\xE9\xED\xF3\xFA\xF1"), std::string::npos);
  EXPECT_EQ(all.find('\xC3'), std::string::npos);
}

TEST(ResourceLibrary, HoldsTheSkinLogoIconAndFont) {
  CResDll pictures;
  pictures.DllName(DistFolder() + "Resource.DLL");
  ASSERT_FALSE(pictures.DllName().empty());
  EXPECT_EQ(pictures.LoadDllBitmap(IDB_SKIN).Type(), PICTYPE_BITMAP);
  EXPECT_EQ(pictures.LoadDllBitmap(IDB_LOGO).Type(), PICTYPE_BITMAP);
  EXPECT_EQ(pictures.LoadDllIcon(IDI_WINDOW).Type(), PICTYPE_ICON);

  std::string font = pictures.LoadDllData(IDR_FONT, "CUSTOM");
  ASSERT_GT(font.size(), 12u);
  EXPECT_EQ(font.substr(0, 4), std::string("\0\1\0\0", 4)) << "a TrueType file";

  DWORD installed = 0;
  HANDLE added =
      ::AddFontMemResourceEx(font.data(), static_cast<DWORD>(font.size()), nullptr, &installed);
  ASSERT_NE(added, nullptr);
  EXPECT_EQ(toolkit::ResolvedFontFace("XFont Morvane"), "XFont Morvane");
  ::RemoveFontMemResourceEx(added);
}

TEST(ShippingFolder, HoldsExactlyTheProgramItsLibrariesAndConfig) {
  std::set<std::string> names;
  WIN32_FIND_DATAA entry;
  HANDLE search = ::FindFirstFileA((DistFolder() + "*").c_str(), &entry);
  ASSERT_NE(search, INVALID_HANDLE_VALUE);
  do {
    std::string name = entry.cFileName;
    // Running the program from the build writes these two beside it.
    const bool writtenByARun = name == "ARA.INI" || name == "Morvane.ttf";
    if (name != "." && name != ".." && !writtenByARun) names.insert(name);
  } while (::FindNextFileA(search, &entry));
  ::FindClose(search);
  EXPECT_EQ(names, (std::set<std::string>{"Config.ini", "LANG_ENG.DLL", "LANG_ESP.DLL",
                                          "Morvane.exe", "Resource.DLL", "iconos.dll"}));

  const std::string config = DistFolder() + "Config.ini";
  EXPECT_EQ(frame::ReadIniValue("Config", "Font", config), "Tahoma");
  EXPECT_EQ(frame::ReadIniValue("Config", "LANGUAGE", config), "");
}

}  // namespace
