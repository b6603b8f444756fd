// The About box: what pack runs here, on which game.
#pragma once

namespace About {

// Shows the box. The fields of a game that is not installed are empty.
void ShowAbout();

}  // namespace About
