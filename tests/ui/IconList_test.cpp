// The icon list of the real main window, filled in this process as a user's
// choice of an icon file fills it. However the load is paced, every icon of
// the file ends as an item showing that icon.
#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>

#include "core/FolderSettings.h"
#include "platform/ResourceLibrary.h"
#include "support/TestSupport.h"
#include "toolkit/ListView.h"
#include "toolkit/MessageLoop.h"
#include "ui/AboutWindow.h"
#include "ui/ControlIds.h"
#include "ui/MainWindow.h"

namespace {

using testing_support::DibSurface;
using testing_support::ScratchFolder;

TEST(IconList, EveryIconOfTheFileIsAnItemShowingThatIcon) {
  // A copy of the program files: opening a file adds it to the recent list.
  ScratchFolder program, target;
  for (const char* file : {"Resource.DLL", "LANG_ENG.DLL", "iconos.dll"}) {
    ASSERT_TRUE(::CopyFileA((testing_support::DistFolder() + file).c_str(),
                            (program / file).c_str(), FALSE));
  }
  platform::ResourceLibrary pictures, language;
  pictures.Open(program / "Resource.DLL");
  language.Open(program / "LANG_ENG.DLL");
  core::FolderSettings settings;
  const ui::WindowContext context{language, pictures, program.Path() + "\\", target.Path(), {}};
  ui::AboutWindow about(context);
  ui::MainWindow window(context, settings, false, about, [] {});
  window.Load();
  window.Show();
  toolkit::DoEvents();
  HWND list = dynamic_cast<toolkit::ListView&>(*window.Find(ui::names::kIconList)).Hwnd();

  for (int count : {1, 120, 1234}) {
    SCOPED_TRACE(count);
    window.OpenIconFile(testing_support::TestFolder() + "ICONS" + std::to_string(count) + ".DLL");
    ASSERT_EQ(ListView_GetItemCount(list), count);
    HIMAGELIST images = ListView_GetImageList(list, LVSIL_NORMAL);
    int size = 0;
    ASSERT_TRUE(ImageList_GetIconSize(images, &size, &size));
    DibSurface drawn(size, size, RGB(255, 255, 255));
    for (int item = 0; item < count; ++item) {
      LVITEMW row{};
      row.mask = LVIF_IMAGE;
      row.iItem = item;
      ASSERT_TRUE(ListView_GetItem(list, &row));
      ImageList_Draw(images, row.iImage, drawn.Dc(), 0, 0, ILD_NORMAL);
      // The numbered libraries put the icon's position in its centre pixel.
      ASSERT_EQ(drawn.Pixel(size / 2, size / 2), RGB(item % 256, item / 256, 0)) << item;
    }
  }
}

}  // namespace
