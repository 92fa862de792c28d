// The messages of the catalogue: their numbers in Langues.lng. The code uses the names alone.
#pragma once

#include "frame/message.h"

namespace zandor::message {

// warnings about files
inline constexpr Message ThumbnailFolderFailed{93}; // |1 the folder, |2 a line break

inline constexpr Message ReadingStock{214}; // also of consists; followed by blanks and the file's name

// loading, and what is known of a vehicle
inline constexpr Message ListingEngines{389};
inline constexpr Message ListingWagons{390};

// the consist under edit
inline constexpr Message ClassElectric{420};
inline constexpr Message ClassDiesel{421};
inline constexpr Message ClassSteam{422};
inline constexpr Message ClassCarriage{423};
inline constexpr Message ClassFreight{424};
inline constexpr Message ClassTender{425};

// routes
inline constexpr Message ReadingServices{446}; // stands between a route and a file
inline constexpr Message Activities{450};      // a column, and as 446

// the thumbnails control
inline constexpr Message CheckingThumbnails{455}; // |1 the title
inline constexpr Message OneThumbnailMoved{
    456}; // |1 the count, |2 "Thumbnails", |3 "Unusable_Thumbnails", |4 the title
inline constexpr Message ManyThumbnailsMoved{457};    // as 456
inline constexpr Message OneThumbnailRestored{458};   // as 456
inline constexpr Message ManyThumbnailsRestored{459}; // as 456
inline constexpr Message ThumbnailsOf{460}; // followed by "... Train Simulator" or "... Train Store"

// loading, deleting, exporting
inline constexpr Message StepDone{498};
inline constexpr Message ReadingConsists{502};
inline constexpr Message ReadingRoute{503}; // followed by a blank and the route's name
inline constexpr Message TooManyFiles{586}; // |1 the path, |2 the limit

// files that aren't read
inline constexpr Message FilesPassedOver{804}; // |1 the lines of 805 and 806, each after a line break
inline constexpr Message FileAndSize{805};     // |1 the file, |2 its size in megabytes
inline constexpr Message AndMoreFiles{806};    // |1 how many files aren't named

} // namespace zandor::message
