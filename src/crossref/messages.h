// The messages of the cross reference: their numbers in Langues.lng. The code uses the names alone.
#pragma once

#include "frame/message.h"

namespace zandor::message {

inline constexpr Message ColumnServices{131};
inline constexpr Message ColumnConsists{132};

// folders, services and what the verifier hints
inline constexpr Message ServiceConsistNotFound{
    411}; // |1 the consist's file, |2 a line break, |3 the file looked for

// routes
inline constexpr Message ColumnLooseStock{451};

// the stock search and the stock list
inline constexpr Message ColumnPath{468};
inline constexpr Message ColumnFolder{469};
inline constexpr Message ColumnStockFile{470};
inline constexpr Message ColumnStockName{471};
inline constexpr Message ColumnConsistFile{472};
inline constexpr Message ColumnConsistName{473};
inline constexpr Message ColumnMissingStock{474};
inline constexpr Message ColumnRoute{475};
inline constexpr Message ColumnActivityFile{476};
inline constexpr Message ColumnActivity{477};
inline constexpr Message ColumnMissingConsist{478};
inline constexpr Message ColumnWantedStock{479}; // the stock that is missing, with its folder
inline constexpr Message ColumnType{480};
inline constexpr Message ColumnStockFolder{482};
inline constexpr Message ResultCount{483}; // |1 the count

// what can be done with a result of the search
inline constexpr Message MenuEditFile{484};
inline constexpr Message MenuOpenFolder{485};
inline constexpr Message TipResult{489};
inline constexpr Message PickStock{492};
inline constexpr Message MenuOpenConsist{493}; // |1 the consist's file, |2 its name

// loading, deleting, exporting
inline constexpr Message ColumnConsist{499};

// the tab of routes, and replacements
inline constexpr Message RouteNamesLabel{650};
inline constexpr Message OpenConsistFileButton{651};
inline constexpr Message ReplaceConsistButton{652};
inline constexpr Message ReplaceVehicleButton{653};
inline constexpr Message ReplacementStockLabel{654};
inline constexpr Message WeightLabel{655};
inline constexpr Message LengthLabel{656};
inline constexpr Message ColumnBrakesCapitals{657};
inline constexpr Message ColumnCouplingCapitals{658};

// the tab of the stock search
inline constexpr Message SearchLabel{660};
inline constexpr Message BoxFileName{661};
inline constexpr Message BoxFolderName{662};
inline constexpr Message BoxDescription{663};
inline constexpr Message StockListButton{664};
inline constexpr Message SearchText{665};
inline constexpr Message SearchUsers{666};
inline constexpr Message SearchBrokenConsists{667};
inline constexpr Message SearchBrokenActivities{668};
inline constexpr Message SearchBrokenServices{669};
inline constexpr Message SearchMissingStock{670};
inline constexpr Message SearchUnusedConsists{671};
inline constexpr Message MenuOpenConsistPlain{672}; // 493 without a name

} // namespace zandor::message
