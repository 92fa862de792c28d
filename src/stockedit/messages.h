// The messages of the editing of stock: their numbers in Langues.lng. The code uses the names alone.
#pragma once

#include "frame/message.h"

namespace zandor::message {

inline constexpr Message NextStock{189};
inline constexpr Message DescriptionTitle{202}; // |1 the title

// columns and buttons of other windows
inline constexpr Message PreviousStock{263};

// folders, services and what the verifier hints
inline constexpr Message CreatePictureHint{410};

// loading, deleting, exporting
inline constexpr Message CreatePicture{549}; // followed by "..."
inline constexpr Message PictureCreated{551};

// the properties of a stock file
inline constexpr Message PropertiesTitle{720}; // |1 the stock's name
inline constexpr Message NameLabel{721};
inline constexpr Message PowerLabel{722};
inline constexpr Message UnitTons{723};
inline constexpr Message DescriptionLabel{724};
inline constexpr Message ApplyButton{725};
inline constexpr Message HeaderWrong{726};

// the description window and the export of the stock list
inline constexpr Message CanvasMenu{760};
inline constexpr Message CanvasBackColour{761};
inline constexpr Message CanvasOwnOptions{762};
inline constexpr Message CanvasAbout{763};
inline constexpr Message CanvasDistance{764};

} // namespace zandor::message
