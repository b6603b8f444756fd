// What a window must know of a long step.
#pragma once

namespace Platform {

// True while AnswerMessages answers others. What they ask may not begin anything then: the step
// that waits for the answer is in the middle of its work.
bool IsAnsweringMessages();

}  // namespace Platform
