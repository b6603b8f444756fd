#include "e2e/driver/Picture.h"

#include <zlib.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <stdexcept>

namespace E2e {
namespace {

// A bitmap in memory that is drawn on, and what is on it then.
Picture Drawn(int width, int height, const std::function<void(HDC)>& draw) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;  // from the top
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  const HDC memory = CreateCompatibleDC(nullptr);
  void* bits = nullptr;
  const HBITMAP bitmap = CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  const HGDIOBJ before = SelectObject(memory, bitmap);
  draw(memory);
  GdiFlush();
  const auto* pixels = static_cast<const uint32_t*>(bits);
  Picture picture{width, height, {pixels, pixels + static_cast<size_t>(width) * height}};
  for (uint32_t& pixel : picture.pixels) pixel &= 0xFFFFFF;
  SelectObject(memory, before);
  DeleteObject(bitmap);
  DeleteDC(memory);
  return picture;
}

std::string BigEndian(uint32_t number) {
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(number >> shift);
  return bytes;
}

std::string Chunk(const std::string& type, const std::string& data) {
  const std::string body = type + data;
  const auto* bytes = reinterpret_cast<const Bytef*>(body.data());
  const auto sum = static_cast<uint32_t>(crc32(0, bytes, static_cast<uInt>(body.size())));
  return BigEndian(static_cast<uint32_t>(data.size())) + body + BigEndian(sum);
}

std::string Compressed(const std::string& raw) {
  uLongf size = compressBound(static_cast<uLong>(raw.size()));
  std::string compressed(size, '\0');
  if (compress2(reinterpret_cast<Bytef*>(compressed.data()), &size,
                reinterpret_cast<const Bytef*>(raw.data()), static_cast<uLong>(raw.size()),
                Z_BEST_COMPRESSION) != Z_OK) {
    throw std::runtime_error("a picture cannot be compressed");
  }
  compressed.resize(size);
  return compressed;
}

}  // namespace

Picture TakePicture(RECT rectangle) {
  const RECT screen{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
  RECT seen{};
  if (!IntersectRect(&seen, &rectangle, &screen)) return {};
  const int width = seen.right - seen.left;
  const int height = seen.bottom - seen.top;
  const HDC desktop = GetDC(nullptr);
  Picture picture = Drawn(width, height, [&](HDC memory) {
    BitBlt(memory, 0, 0, width, height, desktop, seen.left, seen.top, SRCCOPY);
  });
  ReleaseDC(nullptr, desktop);
  return picture;
}

Picture PictureOfIcon(const char* icon, int width, int height, uint32_t background) {
  return Drawn(width, height, [&](HDC memory) {
    const RECT all{0, 0, width, height};
    const HBRUSH brush =
        CreateSolidBrush(RGB(background >> 16 & 255, background >> 8 & 255, background & 255));
    FillRect(memory, &all, brush);
    DeleteObject(brush);
    DrawIconEx(memory, 0, 0, LoadIconA(nullptr, icon), width, height, 0, nullptr, DI_NORMAL);
  });
}

double Difference(const Picture& one, const Picture& other) {
  if (one.width != other.width || one.height != other.height || one.pixels.empty()) return 1;
  double sum = 0;
  for (size_t i = 0; i < one.pixels.size(); i++) {
    for (int shift = 0; shift <= 16; shift += 8) {
      sum += std::abs(static_cast<int>(one.pixels[i] >> shift & 255) -
                      static_cast<int>(other.pixels[i] >> shift & 255));
    }
  }
  return sum / (static_cast<double>(one.pixels.size()) * 3 * 255);
}

void SavePicture(const Picture& picture, const std::string& path) {
  std::string rows;
  for (int y = 0; y < picture.height; y++) {
    rows += '\0';  // no filter
    for (int x = 0; x < picture.width; x++) {
      const uint32_t pixel = picture.pixels[static_cast<size_t>(y) * picture.width + x];
      rows += static_cast<char>(pixel >> 16);
      rows += static_cast<char>(pixel >> 8);
      rows += static_cast<char>(pixel);
    }
  }
  const std::string header = BigEndian(static_cast<uint32_t>(picture.width)) +
                             BigEndian(static_cast<uint32_t>(picture.height)) +
                             std::string("\x08\x02\0\0\0", 5);  // 8 bits each of red, green, blue
  std::ofstream file(path, std::ios::binary);
  file << "\x89PNG\r\n\x1a\n"
       << Chunk("IHDR", header) << Chunk("IDAT", Compressed(rows)) << Chunk("IEND", "");
  if (!file.flush()) throw std::runtime_error("cannot write " + path);
}

}  // namespace E2e
