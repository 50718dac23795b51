#include "ui/AboutWindow.h"

#include <utility>

#include "platform/Dpi.h"
#include "platform/WebPage.h"
#include "resource_ids.h"
#include "ui/ControlIds.h"
#include "ui/Drawing.h"
#include "ui/InterfaceFont.h"

namespace ui {
namespace {

using toolkit::TwipsRect;

constexpr int kClientWidth = 6630;
constexpr int kClientHeight = 4845;
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr POINT kLogoAt{5, 5};
constexpr float kEtchedLineTop = 50;
constexpr double kSplashTextPoints = 16;
constexpr TwipsRect kSplashTextPlace{4395, 1665, 2100, 4335};
constexpr char kLineBreak[] = "\r\n";
// Stands for a line break among the string numbers of the information text.
constexpr int kBreak = -1;

}  // namespace

AboutWindow::AboutWindow(const WindowContext& context)
    : Form(names::kAboutWindow, kClientWidth, kClientHeight), context_(context) {}
AboutWindow::~AboutWindow() = default;

void AboutWindow::SetSplash(bool splash) {
  splash_ = splash;
  if (!splash && deferredPageOwner_) Open(std::exchange(deferredPageOwner_, nullptr));
}

void AboutWindow::Open(HWND pageOwner) {
  if (Loaded()) return;
  if (splash_) {
    deferredPageOwner_ = pageOwner;
    return;
  }
  pageOwner_ = pageOwner;
  ShowModal();
}

void AboutWindow::CreateElements() {
  text_ = &AddTextBox(names::kAboutText, {135, 945, 4020, 3795}, ids::aboutText,
                      toolkit::TextBox::Lines::kMultiple);
  updatesFace_ = &AddPictureBox(names::kUpdatesButton, {4395, 2355, 2100, 375}, ids::updatesButton);
  webPageFace_ = &AddPictureBox(names::kWebPageButton, {4410, 3060, 2100, 375}, ids::webPageButton);
  helpFace_ = &AddPictureBox(names::kHelpButton, {4410, 3750, 2100, 375}, ids::helpButton);
  okFace_ = &AddPictureBox(names::kOkButton, {4395, 4335, 2100, 420}, ids::okButton);
  settingsFace_ =
      &AddPictureBox(names::kSettingsButton, {4410, 990, 2100, 375}, ids::settingsButton);
  skin_ = &AddPictureBox(names::kAboutSkin, {4365, 4410, 2865, 750}, ids::aboutSkin);
  logo_ = &AddPictureBox(names::kLogo, {4995, 3690, 480, 480}, ids::logo);
  splashText_ = &AddLabel(names::kSplashText, -1, {45, 135, 645, 510});

  SetScaleMode(toolkit::ScaleMode::kPixels);
  ::SendMessageW(text_->Hwnd(), EM_SETREADONLY, TRUE, 0);
  for (toolkit::PictureBox* face :
       {updatesFace_, webPageFace_, helpFace_, okFace_, settingsFace_, skin_, logo_}) {
    face->SetAutoRedraw(true);
    face->SetForeColor(kBlue);
  }
  for (toolkit::PictureBox* hidden : {settingsFace_, skin_, logo_}) hidden->SetVisible(false);
  splashText_->SetVisible(false);

  auto web = [this](platform::WebPage page) {
    return [this, page] {
      platform::OpenWebPage(page, context_.Text(IDS_LANGUAGE_CODE), pageOwner_,
                            context_.programFolder);
    };
  };
  using Behaviour = SkinnedButton::Behaviour;
  updatesButton_ = std::make_unique<SkinnedButton>(
      *updatesFace_, Behaviour{true, web(platform::kUpdates), nullptr});
  webPageButton_ = std::make_unique<SkinnedButton>(
      *webPageFace_, Behaviour{true, web(platform::kWebPage), nullptr});
  helpButton_ = std::make_unique<SkinnedButton>(*helpFace_,
                                                Behaviour{true, web(platform::kHelpPage), nullptr});
  okButton_ =
      std::make_unique<SkinnedButton>(*okFace_, Behaviour{true, nullptr, [this] { Unload(); }});
  settingsButton_ =
      std::make_unique<SkinnedButton>(*settingsFace_, Behaviour{true, nullptr, nullptr});
  splashText_->mouse.onClick = [this] { Unload(); };
}

void AboutWindow::OnLoad() {
  Move((toolkit::Screen::Width(Dpi()) - Width()) / 2,
       (toolkit::Screen::Height(Dpi()) - Height()) / 2);
  skin_->SetPicture(SkinForDpi(context_.pictures.Bitmap(IDB_SKIN), Dpi()));
  skin_->SetPicture(skin_->Image());
  ApplyInterfaceFont(*this, context_.ConfigFile());
  if (splash_) {
    DisableButtons();
    splashText_->Move(kSplashTextPlace);
    splashText_->SetCaption(context_.Text(IDS_SPLASH_INFO));
    toolkit::TryProperty([this] { splashText_->SetFontBold(true); });
    toolkit::TryProperty([this] { splashText_->SetFontSize(kSplashTextPoints); });
    splashText_->SetForeColor(kBlue);
    splashText_->SetVisible(true);
    for (toolkit::PictureBox* hidden :
         {okFace_, updatesFace_, helpFace_, skin_, logo_, webPageFace_}) {
      hidden->SetVisible(false);
    }
  }
  updatesCaption_ = context_.Text(IDS_ABOUT_UPDATE);
  helpCaption_ = context_.Text(IDS_HELP);
  webPageCaption_ = context_.Text(IDS_ABOUT_WEB_PAGE);
  okCaption_ = context_.Text(IDS_ABOUT_OK);
  settingsCaption_ = context_.Text(IDS_ABOUT_SETTINGS);
  text_->SetText(InformationText());
  DescribeElements();
  Tile();
}

// Screen readers call the information text and the window by the text's
// first line, the program's name and version.
void AboutWindow::DescribeElements() {
  auto title = [this] {
    return context_.Text(IDS_PRODUCT_NAME) + " " + context_.Text(IDS_ABOUT_VERSION);
  };
  text_->SetAccessibility({.role = ROLE_SYSTEM_TEXT,
                           .name = title,
                           .value = [this] { return text_->Text(); },
                           .extraState = [] { return STATE_SYSTEM_READONLY; }});
  SetAccessibility({.role = ROLE_SYSTEM_DIALOG, .name = title});
  const std::initializer_list<std::pair<SkinnedButton*, const std::string*>> buttons = {
      {updatesButton_.get(), &updatesCaption_},
      {webPageButton_.get(), &webPageCaption_},
      {helpButton_.get(), &helpCaption_},
      {okButton_.get(), &okCaption_}};
  for (const auto& [button, caption] : buttons) {
    button->Face().SetAccessibility({.role = ROLE_SYSTEM_PUSHBUTTON,
                                     .name = [caption] { return *caption; },
                                     .defaultAction = [button] { button->Press(); }});
  }
}

std::string AboutWindow::InformationText() const {
  std::string text = context_.Text(IDS_PRODUCT_NAME) + " ";
  const int pieces[] = {IDS_ABOUT_VERSION,
                        kBreak,
                        kBreak,
                        IDS_ABOUT_SUMMARY,
                        kBreak,
                        IDS_COPYRIGHT,
                        kBreak,
                        IDS_ABOUT_RIGHTS,
                        kBreak,
                        IDS_ABOUT_WEB_ADDRESS,
                        kBreak,
                        kBreak,
                        IDS_ABOUT_THANKS,
                        kBreak,
                        IDS_ABOUT_CREDITS,
                        kBreak,
                        IDS_ABOUT_CONTACT,
                        kBreak};
  for (int piece : pieces) text += piece == kBreak ? std::string(kLineBreak) : context_.Text(piece);
  return text;
}

void AboutWindow::DisableButtons() {
  for (toolkit::Element* element : Elements()) {
    if (auto* surface = dynamic_cast<toolkit::PictureBox*>(element)) {
      ::EnableWindow(surface->Hwnd(), FALSE);
    }
  }
}

void AboutWindow::Tile() {
  const std::initializer_list<SkinnedButton*> buttons = {helpButton_.get(), updatesButton_.get(),
                                                         webPageButton_.get(), okButton_.get(),
                                                         settingsButton_.get()};
  for (SkinnedButton* button : buttons) button->ClearHover();
  for (SkinnedButton* button : buttons) button->ResetFace(*skin_);
  DrawCaption(*updatesFace_, updatesCaption_);
  DrawCaption(*helpFace_, helpCaption_);
  DrawCaption(*webPageFace_, webPageCaption_);
  DrawCaption(*okFace_, okCaption_);
  DrawCaption(*settingsFace_, settingsCaption_);
}

void AboutWindow::OnPaint(HDC) {
  // PaintSkin scales it with the rest.
  const float lineLength =
      static_cast<float>(toolkit::Screen::TwipsToPixels(Width(), platform::kDesignDpi));
  PaintSkin(*this, context_.pictures.Bitmap(IDB_SKIN), context_.pictures.Bitmap(LogoForDpi(Dpi())),
            *logo_, kEtchedLineTop, lineLength, kLogoAt);
}

// The button faces are cut from the skin, which is enlarged for each DPI.
void AboutWindow::OnDpiChanged() {
  skin_->SetPicture(SkinForDpi(context_.pictures.Bitmap(IDB_SKIN), Dpi()));
  skin_->SetPicture(skin_->Image());
  Tile();
}

void AboutWindow::OnClick() {
  Unload();
}

void AboutWindow::OnMouseMove(const toolkit::MouseEvent&) {
  Tile();
}

// Esc closes the window as OK does.
bool AboutWindow::OnKeyDown(int virtualKey) {
  if (virtualKey != VK_ESCAPE) return false;
  okButton_->Press();
  return true;
}

void AboutWindow::OnUnload() {
  for (toolkit::PictureBox* surface :
       {logo_, updatesFace_, helpFace_, webPageFace_, okFace_, settingsFace_}) {
    surface->SetPicture({});
  }
}

}  // namespace ui
