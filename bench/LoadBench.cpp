#include "LoadBench.h"

#include <windows.h>

#include <shellapi.h>

#include <vector>

#include "Clock.h"
#include "frame/CResDll.h"
#include "frame/RunState.h"
#include "icons/modExtractIcon.h"
#include "icons/modIcon.h"
#include "resource_ids.h"
#include "toolkit/MessageLoop.h"
#include "ui/frmShadow.h"

namespace bench {
namespace {

constexpr char kPictureLibrary[] = "Resource.DLL";
constexpr char kLanguageLibrary[] = "LANG_ENG.DLL";

template <typename T>
T& Named(ui::FrmPrincipal& window, const char* name) {
  return dynamic_cast<T&>(*window.Find(name));
}

void DestroyAll(const std::vector<HICON>& icons) {
  for (HICON icon : icons) {
    if (icon) ::DestroyIcon(icon);
  }
}

}  // namespace

ui::FrmPrincipal& OpenMainWindow(const std::string& programFolder,
                                 const std::string& targetFolder) {
  frame::startingUp = true;
  frame::programFolder = programFolder;
  frame::languageFile = kLanguageLibrary;
  frame::PictureLibrary().DllName(programFolder + kPictureLibrary);
  frame::LanguageLibrary().DllName(programFolder + kLanguageLibrary);
  frame::targetFolder = targetFolder;

  ui::FrmPrincipal& window = ui::MainWindow();
  window.Load();
  toolkit::DoEvents();
  window.Tile();
  ui::ShadowWindow().Show();
  window.Show();
  toolkit::DoEvents();
  frame::startingUp = false;
  return window;
}

double TimeBrowserLoad(ui::FrmPrincipal& window, const std::string& file, int icons) {
  frame::currentIconFile = file;
  // Paints left over from the previous load are not this load's cost.
  toolkit::DoEvents();
  const double elapsed = TimeMs([&] { window.CargarIconosdeArchivo(); });
  const int listed = Named<toolkit::ListView>(window, "lvwIconos").Count();
  toolkit::DoEvents();
  return listed == icons ? elapsed : -1;
}

double TimeSingleExtractions(const std::string& file, int icons) {
  return TimeMs([&] {
    for (int i = 0; i < icons; ++i) {
      HICON large = nullptr;
      HICON small = nullptr;
      ::ExtractIconExA(file.c_str(), i, &large, &small, 1);
      if (large) ::DestroyIcon(large);
      if (small) ::DestroyIcon(small);
    }
  });
}

double TimeBatchedExtraction(const std::string& file, int icons) {
  std::vector<HICON> large(icons);
  std::vector<HICON> small(icons);
  return TimeMs([&] {
    ::ExtractIconExA(file.c_str(), 0, large.data(), small.data(), static_cast<UINT>(icons));
    DestroyAll(large);
    DestroyAll(small);
  });
}

StepCosts TimeLoadSteps(ui::FrmPrincipal& window, const std::string& file, int icons) {
  auto& images = Named<toolkit::ImageList>(window, "img32");
  auto& list = Named<toolkit::ListView>(window, "lvwIconos");
  StepCosts costs;

  const toolkit::Picture background = frame::PictureLibrary().LoadDllBitmap(IDB_SKIN);
  costs.progressMs = TimeMs([&] {
    for (int i = 0; i < icons; ++i) window.ShowProgress(i, icons, background);
  });

  // Image and item steps start from an empty list, as in a load.
  list.SetIcons(nullptr);
  list.Clear();
  images.Clear();
  HICON icon = icons::ExtractLargeIcon(file, 0);
  costs.iconImageMs = TimeMs([&] {
    for (int i = 0; i < icons; ++i) window.AddIconImage(icon, i);
  });
  icons::ReleaseIcon(icon);

  // The scratch surface's last picture, as each pass leaves one.
  const toolkit::Picture image = Named<toolkit::PictureBox>(window, "picTMP").GetPicture();
  images.Clear();
  costs.imageListMs = TimeMs([&] {
    for (int i = 0; i < icons; ++i) images.Add("c" + std::to_string(i), image);
  });

  list.SetIcons(&images);
  costs.itemsMs = TimeMs([&] { window.ListIcons(icons); });
  toolkit::DoEvents();
  return costs;
}

}  // namespace bench
