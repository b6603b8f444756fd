// Pictures of what is on the screen.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

namespace E2e {

struct Picture {
  int width = 0;
  int height = 0;
  std::vector<uint32_t> pixels;  // 0xRRGGBB, row by row from the top
};

// What the screen shows in a rectangle; what lies outside the screen is left out.
Picture TakePicture(RECT rectangle);
// A system icon (IDI_INFORMATION...) as it is drawn in a window of the given size and background.
Picture PictureOfIcon(const char* icon, int width, int height, uint32_t background);
// How much two pictures of the same size differ: 0 not at all, 1 black against white.
double Difference(const Picture& one, const Picture& other);
// Writes it as a PNG file. Throws std::runtime_error if that fails.
void SavePicture(const Picture& picture, const std::string& path);

}  // namespace E2e
