#include "LoadBench.h"

#include <windows.h>

#include <shellapi.h>

#include <vector>

#include "Clock.h"
#include "platform/IconFile.h"
#include "resource_ids.h"
#include "toolkit/MessageLoop.h"
#include "ui/ControlIds.h"

namespace bench {
namespace {

constexpr int kIconSize = 32;  // the large icons at 96 dpi

constexpr char kPictureLibrary[] = "Resource.DLL";
constexpr char kLanguageLibrary[] = "LANG_ENG.DLL";
constexpr char kShippedLibrary[] = "iconos.dll";

template <typename T>
T& Named(MainWindowRun& run, const char* name) {
  return dynamic_cast<T&>(*run.window->Find(name));
}

void DestroyAll(const std::vector<HICON>& icons) {
  for (HICON icon : icons) {
    if (icon) ::DestroyIcon(icon);
  }
}

}  // namespace

MainWindowRun& OpenMainWindow(const std::string& programFolder, const std::string& targetFolder) {
  auto* run = new MainWindowRun;
  run->pictures.Open(programFolder + kPictureLibrary);
  run->language.Open(programFolder + kLanguageLibrary);
  run->context.emplace(
      ui::WindowContext{run->language, run->pictures, programFolder, targetFolder, RECT{}});
  run->about = std::make_unique<ui::AboutWindow>(*run->context);
  // As the program's own end: the close sequence ends the process.
  run->window = std::make_unique<ui::MainWindow>(*run->context, run->settings, false, *run->about,
                                                 [] { ::ExitProcess(0); });
  ui::MainWindow& window = *run->window;
  window.Load();
  toolkit::DoEvents();
  window.Tile();
  window.Shadow().Show();
  window.Show();
  toolkit::DoEvents();
  run->listedFile = programFolder + kShippedLibrary;
  return *run;
}

double TimeBrowserLoad(MainWindowRun& run, const std::string& file, int icons) {
  if (file != run.listedFile) {
    run.window->OpenIconFile(file);
    run.listedFile = file;
  }
  // Paints left over from the previous load are not this load's cost.
  toolkit::DoEvents();
  const double elapsed = TimeMs([&] { run.window->LoadIcons(); });
  const int listed = Named<toolkit::ListView>(run, ui::names::kIconList).Count();
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

double TimeSingleOwnExtractions(const std::string& file, int icons, int size) {
  const platform::IconFile source(file);
  return TimeMs([&] {
    for (int i = 0; i < icons; ++i) platform::ReleaseIcon(source.Extract(i, size));
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

StepCosts TimeLoadSteps(MainWindowRun& run, const std::string& file, int icons) {
  ui::MainWindow& window = *run.window;
  auto& images = Named<toolkit::ImageList>(run, ui::names::kIconImages);
  auto& list = Named<toolkit::ListView>(run, ui::names::kIconList);
  StepCosts costs;

  const platform::Picture background = run.pictures.Bitmap(IDB_SKIN);
  costs.progressMs = TimeMs([&] {
    for (int i = 0; i < icons; ++i) window.ShowProgress(i, icons, background);
  });

  // Image and item steps start from an empty list, as in a load.
  list.SetIcons(nullptr);
  list.Clear();
  images.Clear();
  HICON icon = platform::IconFile(file).Extract(0, kIconSize);
  costs.iconImageMs = TimeMs([&] {
    for (int i = 0; i < icons; ++i) window.AddIconImage(icon, i);
  });
  platform::ReleaseIcon(icon);

  // The scratch surface's last picture, as each pass leaves one.
  const platform::Picture image = Named<toolkit::PictureBox>(run, ui::names::kScratch).GetPicture();
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
