#include "ui/InputBox.h"

#include "base/SharedTexts.h"
#include "ui/Forms.h"

namespace Platform {

namespace {

class InputBoxForm final : public Form {
 public:
  InputBoxForm(const std::string& prompt, const std::string& title) : Form(FixedText("")) {
    OnLoad = [this, prompt, title] {
      // Here, because loading looks up title and captions in the table, where a built text is not.
      SetTitle(title);
      Answer.SetCaption(AsCaption(prompt));
    };
    Submit.OnClick = [this] {
      result = Answer.text();
      EndModal();
    };
    Ccl.OnClick = [this] { EndModal(); };
  }

  std::string result;

 private:
  TextBox Answer{*this, {.label = FixedText("")}};
  Button Submit{*this, {.text = SharedTexts.OKButton, .isDefault = true}};
  Button Ccl{*this, {.text = SharedTexts.CclButton, .isCancel = true}};
};

}  // namespace

std::string InputBox(const std::string& prompt, const std::string& title) {
  InputBoxForm box(prompt, title);
  box.ShowModal();
  return box.result;
}

}  // namespace Platform
