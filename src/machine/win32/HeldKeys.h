// Keys that are held down when a long step ends.
#pragma once

namespace Platform {

// From now on the keys that are down now are deaf: what the keyboard repeats of them reaches no
// window of this thread, whether ours, a box or a dialog of the system, until they are let go and
// pressed anew. Where the system refuses that, they repeat.
void IgnoreHeldKeys() noexcept;

}  // namespace Platform
