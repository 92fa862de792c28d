// The strip as a list of drawing steps: which picture, line, bar, text or mark stands where, in which colour.
// Who carries them out needs to know nothing of consists. All in pixels of the strip's picture imgRAME,
// counted from its top left corner.
#pragma once

#include "catalogue/pictures.h"
#include "editor/consist_document.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace zandor {

struct StripColour {
    unsigned char red = 0, green = 0, blue = 0;
    bool operator==(const StripColour&) const = default;
};
inline constexpr StripColour StripSky{148, 198, 239}; // where there is no vehicle

struct StripRect {
    int left = 0, top = 0, width = 0, height = 0;
    bool operator==(const StripRect&) const = default;
};

// Where a picture comes from: one of the program's own by its name, or a file.
struct PictureName {
    bool isResource = false;
    std::string name;
    auto operator<=>(const PictureName&) const = default;
};
PictureName pictureOf(const Vehicule& vehicule);

enum class CouplingMark { Auto, Bar, Chain, Hydro, NotCompatible };

// ---- the steps

struct SizeStrip { // keeps what is drawn
    int width;
    bool operator==(const SizeStrip&) const = default;
};
struct ClearStrip {
    StripColour colour;
    bool operator==(const ClearStrip&) const = default;
};
// Clears to the colour of the picture's top left pixel.
struct TakeBackColour {
    PictureName picture;
    bool operator==(const TakeBackColour&) const = default;
};
struct CopyPicture {
    PictureName picture;
    StripRect area;
    bool mirrored;
    bool operator==(const CopyPicture&) const = default;
};
struct DrawOutline {
    StripRect area; // the line lies inside
    int lineWidth;
    StripColour colour;
    bool operator==(const DrawOutline&) const = default;
};
struct DrawLine { // one pixel wide, both ends included
    int fromX, fromY, toX, toY;
    StripColour colour;
    bool operator==(const DrawLine&) const = default;
};
struct FillBar {
    StripRect area;
    StripColour colour;
    bool operator==(const FillBar&) const = default;
};
struct PrintText { // in the middle of the box, not cut off at its edges
    std::string text;
    StripRect box;
    StripColour colour;
    bool operator==(const PrintText&) const = default;
};
struct PlaceMark {
    CouplingMark mark;
    int left, top;
    bool operator==(const PlaceMark&) const = default;
};

using StripStep = std::variant<SizeStrip, ClearStrip, TakeBackColour, CopyPicture, DrawOutline, DrawLine,
                               FillBar, PrintText, PlaceMark>;

// What the drawing has to know of the letters and pictures that it is made of.
class TextMeasure {
  public:
    virtual ~TextMeasure() = default;
    virtual int width(std::string_view text) const = 0;
    virtual int height() const = 0; // of a line
};
class PictureMeasure {
  public:
    virtual ~PictureMeasure() = default;
    // Nothing: there is no such picture, or it can't be read.
    virtual std::optional<PictureSize> size(const PictureName& picture) = 0;
    virtual int markWidth(CouplingMark mark) = 0;
};

// The steps that draw the whole strip, or with `onlyLast` its last vehicle alone behind those drawn before.
// Notes each vehicle's DrawnWidth. updateStrip() has been called before. `viewWidth`: of the window that
// shows it, which the picture fills.
std::vector<StripStep> DrawStrip(Editor& editor, PictureMeasure& pictures, const TextMeasure& texts,
                                 int viewWidth, bool onlyLast = false);

// `name` cut from the right until it is at least 20 pixels narrower than `width`; may become empty.
std::string_view fittingName(std::string_view name, const TextMeasure& texts, int width);

} // namespace zandor
