// A real target folder for the run, the real English texts, and the folder
// record as start-up leaves it; everything put back afterwards.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "folder/FolderSettings.h"
#include "frame/CResDll.h"
#include "frame/RunState.h"
#include "support/TestSupport.h"

class FolderFixture : public ::testing::Test {
 protected:
  void SetUp() override {
    frame::LanguageLibrary().DllName(testing_support::DistFolder() + "LANG_ENG.DLL");
    ASSERT_NE(frame::LanguageLibrary().Handle(), nullptr);
    frame::targetFolder = folder_.Path();
    frame::iconListEmpty = false;
    folder::FolderSettings = {};
    folder::settingsFileExisted = false;
  }
  void TearDown() override {
    frame::ReleaseLibraries();
    frame::targetFolder.clear();
  }

  std::string SettingsFile() const { return folder_ / "Desktop.ini"; }
  std::string Text(int id) const { return frame::LanguageLibrary().LoadDllString(id); }

  testing_support::ScratchFolder folder_;
};
