// The messages of the stock lists: their numbers in Langues.lng. The code uses the names alone.
#pragma once

#include "frame/message.h"

namespace zandor::message {

inline constexpr Message StockListTitle{173}; // followed by " - " and the title
inline constexpr Message ListHeading{200};    // |1 the date
inline constexpr Message SaveStockList{227};

// columns and buttons of other windows
inline constexpr Message ColumnPower{258};
inline constexpr Message ColumnMass{259};

// the consist under edit
inline constexpr Message MassLabel{335}; // of the properties

// folders, services and what the verifier hints
inline constexpr Message FillingStockList{416};

// what can be done with a result of the search
inline constexpr Message ExportDone{487};
inline constexpr Message ExportFailed{488};
inline constexpr Message TextFilter{490};   // |1 "(*.txt)|*.txt"
inline constexpr Message MenuSaveList{491}; // also the title of the file dialog

// loading, deleting, exporting
inline constexpr Message SpreadsheetFilter{565}; // |1 "(*.xls)|*.xls"
inline constexpr Message StockTextFilter{566};   // |1 "(*.txt)|*.txt"
inline constexpr Message ColumnCab{567};
inline constexpr Message ColumnLength{568};
inline constexpr Message ColumnBrakeSystem{569};
inline constexpr Message ColumnEngineType{570};
inline constexpr Message WritingSpreadsheet{571};
inline constexpr Message WritingText{572};

// the description window and the export of the stock list
inline constexpr Message ExportTitle{780}; // the title of the file dialog and of the workbook

} // namespace zandor::message
