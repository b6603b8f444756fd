// What a long step of the program does between its blocks.
#pragma once

namespace Platform {

// Answers what other programs, such as a screen reader, ask of the program's windows, and paints
// what is to be painted. What the user does waits until the step is over; what another program
// would do in their place, such as press a button or close the window, is refused.
void AnswerMessages();

}  // namespace Platform
