// Whether a tool that needs the web can be opened.
#pragma once

// True if the computer is online. Otherwise the user is told, over the window in use, and the
// result is false. It is a long step. Fails as Internet::GetPublicIP does.
bool IsOnlineOrTold();
