#include "machine/simulated/OpenBox.h"

namespace Simulated {

using Platform::Answer;
using Platform::Buttons;
namespace Key = Platform::Key;

OpenBox::OpenBox(const Box& box)
    : box_(box), isOnSecondButton_(box.buttons == Buttons::YesNoDefaultNo) {}

void OpenBox::Press(const Platform::KeyEvent& key) {
  if (answer_) return;  // it goes away; later keys do not change what was said
  const bool hasOkAlone = box_.buttons == Buttons::Ok;
  switch (key.code) {
    case Key::Enter:
    case Key::Space:
      answer_ = hasOkAlone ? Answer::Ok : isOnSecondButton_ ? Answer::No : Answer::Yes;
      break;
    case Key::Escape:  // a question has no Cancel
      if (hasOkAlone) answer_ = Answer::Ok;
      break;
    case Key::Tab:
    case Key::Left:
    case Key::Right: isOnSecondButton_ = !isOnSecondButton_; break;
    case 'Y':
      if (!hasOkAlone) answer_ = Answer::Yes;
      break;
    case 'N':
      if (!hasOkAlone) answer_ = Answer::No;
      break;
    default: break;
  }
}

}  // namespace Simulated
