// One window, two uses: the splash while the program starts, and the modal
// about window afterwards, with the information text and the buttons that
// lead to the maker's web pages.
#pragma once

#include <memory>
#include <string>

#include "toolkit/Form.h"
#include "ui/SkinnedButton.h"
#include "ui/WindowContext.h"

namespace ui {

class AboutWindow : public toolkit::Form {
 public:
  explicit AboutWindow(const WindowContext& context);
  ~AboutWindow() override;

  // While set, the window loads as the splash: in front, its buttons hidden
  // and disabled, the splash text shown.
  // Clearing it opens the window if that was asked for meanwhile.
  void SetSplash(bool splash);

  // Opens the window modally; the web pages its buttons open belong to
  // `pageOwner`, the program's main window. While the same window still
  // stands as the splash (start-up lets messages run as it lists the icons),
  // the request is ignored: the splash already shows the information and
  // start-up closes it. Asked for after the splash closed but before
  // start-up ended, the window opens as the about window when it ends.
  void Open(HWND pageOwner);

  // Repaints the button faces in their normal state.
  void Tile();

 protected:
  void CreateElements() override;
  void OnLoad() override;
  void OnUnload() override;
  void OnPaint(HDC dc) override;
  void OnClick() override;
  void OnMouseMove(const toolkit::MouseEvent& event) override;
  void OnDpiChanged() override;
  bool OnKeyDown(int virtualKey) override;

 private:
  void DisableButtons();
  void DescribeElements();
  std::string InformationText() const;

  const WindowContext& context_;
  bool splash_ = false;
  HWND deferredPageOwner_ = nullptr;
  HWND pageOwner_ = nullptr;

  toolkit::TextBox* text_ = nullptr;
  toolkit::PictureBox* updatesFace_ = nullptr;
  toolkit::PictureBox* webPageFace_ = nullptr;
  toolkit::PictureBox* helpFace_ = nullptr;
  toolkit::PictureBox* okFace_ = nullptr;
  toolkit::PictureBox* settingsFace_ = nullptr;
  toolkit::PictureBox* skin_ = nullptr;
  toolkit::PictureBox* logo_ = nullptr;
  toolkit::Label* splashText_ = nullptr;
  std::unique_ptr<SkinnedButton> updatesButton_, webPageButton_, helpButton_, okButton_,
      settingsButton_;
  // Captions fetched at set-up.
  std::string updatesCaption_, helpCaption_, webPageCaption_, okCaption_, settingsCaption_;
};

}  // namespace ui
