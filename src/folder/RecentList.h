// The ten icon files most recently opened, kept in ARA.INI beside the
// program and offered in the main window's drop-down box; OpenIconFile is the
// one way an icon file becomes the one the browser shows.
#pragma once

#include <array>
#include <string>

namespace folder {

inline constexpr int kRecentCount = 10;
inline constexpr char kRecentFileName[] = "ARA.INI";

// The drop-down box cboARA, as the main window provides it; the toolkit's
// ComboBox offers the same operations and events.
class RecentBox {
 public:
  virtual ~RecentBox() = default;
  virtual void Clear() = 0;
  virtual void AddItem(const std::string& text) = 0;
  // Selects the line at `index` (from 0; -1 selects none) and, as the box does
  // when the user chooses a line, raises its choose event, which is expected
  // to call RecentList::OnChoose.
  virtual void SetListIndex(int index) = 0;
  // The selected line's text; "" when no line is selected.
  virtual std::string Text() const = 0;
};

// Loads the icons of frame::currentIconFile into the icon browser.
class IconFileLoader {
 public:
  virtual ~IconFileLoader() = default;
  virtual void CargarIconosdeArchivo() = 0;
};

// One per main window, which forwards its LeerARA and EscribirARA here and
// sends the box's choose and key events to OnChoose and OnKeyPress. Both
// collaborators must outlive the list.
class RecentList {
 public:
  using Entries = std::array<std::string, kRecentCount>;  // [0] = the most recent

  RecentList(RecentBox& box, IconFileLoader& loader) : box_(box), loader_(loader) {}

  // Reads the list from ARA.INI; missing keys give empty entries.
  void LeerARA();
  // Puts `sNombre` on top unless it is listed already, and saves the list.
  void EscribirARA(const std::string& sNombre);
  // Refills the box with the ten entries and notes the line that holds `path`.
  void FillRecentList(const std::string& path);
  // Opens an icon file chosen by the user: `path` is trimmed and lower-cased
  // in place, a missing file is reported, a new one goes on the list, and the
  // browser loads it.
  void OpenIconFile(std::string& path);

  void OnChoose();
  void OnKeyPress(char key);

  const Entries& List() const { return entries_; }
  const std::string& LastOpenedIconFile() const { return lastOpenedIconFile_; }
  int LastOpenedPosition() const { return lastOpenedPosition_; }

 private:
  RecentBox& box_;
  IconFileLoader& loader_;
  Entries entries_;
  std::string lastOpenedIconFile_;
  int lastOpenedPosition_ = 0;  // line of lastOpenedIconFile in the box, from 1; 0 = none
};

}  // namespace folder
