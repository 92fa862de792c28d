// Bitmap files for tests.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace zandor {

inline void putNumber(std::string& bytes, std::int64_t value, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
        bytes += static_cast<char>(value >> (8 * i) & 0xFF);
}

// A grey picture of 8 bits a pixel. `header` is the size that tells the kind of its second header; 12, the
// oldest kind, has numbers of 16 bits.
inline std::string makeBitmap(int width, int height, int header = 40) {
    const int numberSize = header == 12 ? 2 : 4, colourSize = header == 12 ? 3 : 4;
    const int pixels = 14 + header + 256 * colourSize;
    const int rows = (width + 3) / 4 * 4 * std::abs(height);
    std::string bytes = "BM";
    putNumber(bytes, pixels + rows, 4);
    putNumber(bytes, 0, 4);
    putNumber(bytes, pixels, 4);
    putNumber(bytes, header, 4);
    putNumber(bytes, width, static_cast<std::size_t>(numberSize));
    putNumber(bytes, height, static_cast<std::size_t>(numberSize));
    putNumber(bytes, 1, 2); // planes
    putNumber(bytes, 8, 2); // bits a pixel
    bytes.resize(static_cast<std::size_t>(14 + header));
    bytes.append(static_cast<std::size_t>(pixels + rows) - bytes.size(), '\x80');
    return bytes;
}

} // namespace zandor
