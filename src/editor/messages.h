// The messages of the editor: their numbers in Langues.lng. The code uses the names alone.
#pragma once

#include "frame/message.h"

namespace zandor::message {

// captions and tool tips of the main window (our own numbers)
inline constexpr Message CaptionNew{1};
inline constexpr Message CaptionOpen{2};
inline constexpr Message CaptionSave{3};
inline constexpr Message CaptionDelete{4};
inline constexpr Message CaptionOptions{5};
inline constexpr Message TipLanguage{922};
inline constexpr Message TipOptions{923};
inline constexpr Message CaptionHelp{6};
inline constexpr Message CaptionAbout{7};
inline constexpr Message CaptionQuit{8};
inline constexpr Message CaptionNumber{9};
inline constexpr Message CaptionShortName{10};
inline constexpr Message CaptionFullName{11};
inline constexpr Message CaptionDurability{12};
inline constexpr Message CaptionStockClass{13};
inline constexpr Message ColumnName{14};
inline constexpr Message ColumnBrakes{15};
inline constexpr Message ColumnCoupling{16};
inline constexpr Message TipNew{21};
inline constexpr Message TipOpen{22};
inline constexpr Message TipSave{23};
inline constexpr Message TipDelete{24};
inline constexpr Message TipNumber{25};
inline constexpr Message TipStrip{26};
inline constexpr Message TipStockList{27};
inline constexpr Message TipDurability{28};
inline constexpr Message StripEmpty{29};    // hint shown on an empty strip
inline constexpr Message SaveFailed{30};    // |1 the file, |2 a line break
inline constexpr Message OpenFailed{31};    // |1 the file, |2 a line break
inline constexpr Message ConsistFilter{32}; // "Consists"

// the list of consists to open
inline constexpr Message OpenCount{48};           // |1 how many consists
inline constexpr Message OpenCountIncomplete{49}; // |1 how many consists, |2 how many of them lack stock
inline constexpr Message OpenNone{50};
inline constexpr Message TipUsedByService{52};
inline constexpr Message TipUsedByNoService{53};
inline constexpr Message TipIncomplete{54};
inline constexpr Message OpeningConsist{55}; // |1 the consist's name

// the context menu of the strip
inline constexpr Message MenuInsertEnd{65};
inline constexpr Message MenuInsertBefore{66};
inline constexpr Message MenuMoveLeft{67};
inline constexpr Message MenuMoveRight{68};
inline constexpr Message MenuFlip{69};
inline constexpr Message MenuRemove{70};
inline constexpr Message MenuFindInList{71};
inline constexpr Message MenuRenumber{72};

// the list of stock and its context menu
inline constexpr Message StockListEmpty{76}; // instead of rows
inline constexpr Message TipUnusedStock{77};
inline constexpr Message TipCab{78};
inline constexpr Message TipNoCab{79};

// accessible names, and what the strip says of the selected vehicle
inline constexpr Message NameOfStrip{80};
inline constexpr Message NameOfStockList{81};
inline constexpr Message NameOfPreview{82};
inline constexpr Message NameOfStripScroll{83};
inline constexpr Message StatusVehicle{86}; // |1 its place, |2 how many there are, |3 its name, |4 its number
inline constexpr Message StatusVehicleFlipped{87}; // as 86
inline constexpr Message StatusVehicleMissing{88}; // as 86
inline constexpr Message StatusNoVehicle{89};
inline constexpr Message VehicleNotInList{90}; // |1 the vehicle's name
inline constexpr Message CaptionVehicle{85};   // of the button that opens the strip's menu

// warnings about files
inline constexpr Message OpenedFaulty{91};      // |1 the file, |2 a line break, |3 the text of 84, 391 or 392
inline constexpr Message AskSaveFaulty{92};     // |1 the consist's name, |2 a line break
inline constexpr Message PictureUnreadable{94}; // |1 the file, |2 a line break
inline constexpr Message NotAConsist{95};       // |1 the file, |2 a line break
inline constexpr Message StripTooLong{98};      // |1 the most pixels that the strip can show

inline constexpr Message ConsistDeleted{116}; // |1 the file's name
inline constexpr Message OpenTitle{208};      // |1 the title
inline constexpr Message ColumnComposition{209};
inline constexpr Message ColumnFile{210};
inline constexpr Message ColumnFullName{233};

// the list of consists to open
inline constexpr Message ConsistSelected{293}; // |1 the consist's full name, |2 its file
inline constexpr Message OneEngine{294};       // |1 the count
inline constexpr Message ManyEngines{295};     // |1 the count
inline constexpr Message OneWagon{296};        // |1 the count
inline constexpr Message ManyWagons{297};      // |1 the count

// the consist under edit
inline constexpr Message AskSaveExisting{329}; // |1 the consist's name
inline constexpr Message AskSaveNew{330};
inline constexpr Message TotalLength{331}; // |1 metres
inline constexpr Message TotalMass{332};   // |1 the text so far, |2 tons

// loading, and what is known of a vehicle
inline constexpr Message Resistance{394}; // |1 the figure
inline constexpr Message BrakeSystem{395};
inline constexpr Message BrakeAirSinglePipe{396};
inline constexpr Message BrakeAirTwinPipe{397};
inline constexpr Message BrakeVacuumSinglePipe{398};
inline constexpr Message BrakeVacuumTwinPipe{399};
inline constexpr Message Coupling{400};
inline constexpr Message Length{401}; // |1 metres
inline constexpr Message BrakeAirPiped{402};
inline constexpr Message BrakeVacuumPiped{403};
inline constexpr Message CouplingAutomatic{404};
inline constexpr Message CouplingBar{405};
inline constexpr Message CouplingChain{406};
inline constexpr Message CouplingHydraulic{407};
inline constexpr Message Mass{408}; // |1 tons

// the consist under edit
inline constexpr Message ConsistProtected{418}; // |1 the consist's full name, |2 the route, |3 a line break
inline constexpr Message AskDeleteConsist{
    419}; // |1 the consist's full name, |2 the file's name, |3 a line break
inline constexpr Message CouplingsDoNotFit{428};
inline constexpr Message ShortNameEmpty{429};
inline constexpr Message FullNameEmpty{430};
inline constexpr Message NameTaken{431}; // |1 the file name
inline constexpr Message ConsistSaved{432};
inline constexpr Message BackupKept{433};       // |1 a line break, |2 the backup's path
inline constexpr Message CompositionJoint{435}; // between engines and wagons, with unbreakable blanks
inline constexpr Message StockMissing{443};
inline constexpr Message VehicleMissing{444};

// the description window and the export of the stock list
inline constexpr Message DeleteFailed{790}; // |1 the file, |2 a line break

// saving, and figures
inline constexpr Message AskNoBackup{830}; // |1 the consist's name, |2 the backup folder, |3 a line break

// what no consist file can hold
inline constexpr Message StockUnwritable{820}; // |1 the stock's folder and file, |2 a line break

// vehicles that a consist file doesn't name
inline constexpr Message OpenedWithoutVehicle{871}; // |1 the file, |2 a line break, |3 the text of 870

// files that aren't read
inline constexpr Message ConsistUnread{803}; // |1 the file, |2 a line break, |3 the text of 800, 801 or 802

} // namespace zandor::message
