// The messages of the tool window: their numbers in Langues.lng. The code uses the names alone.
#pragma once

#include "frame/message.h"

namespace zandor::message {

// the consist under edit
inline constexpr Message SameRoots{442}; // |1 the program whose folder it is already

// the tool window and its tabs (our own numbers)
inline constexpr Message ToolTitle{600}; // |1 the title
inline constexpr Message TabVerify{601};
inline constexpr Message TabRoutes{602};
inline constexpr Message TabSearch{603};
inline constexpr Message TabDisplay{604};
inline constexpr Message TabOthers{605};

// the tabs of settings
inline constexpr Message BoxPrintName{680};
inline constexpr Message BoxPrintNumber{681};
inline constexpr Message BoxNoAlertCoupling{682}; // checked: no warning
inline constexpr Message BoxPrintGreen{683};
inline constexpr Message BoxCanvas{684};
inline constexpr Message BoxOptimize{685};
inline constexpr Message BoxThumbnails{686};
inline constexpr Message BoxAssociate{687};
inline constexpr Message BoxBackup{688};
inline constexpr Message BoxNewFile{689};
inline constexpr Message LanguageLabel{690};
inline constexpr Message GroupColours{691};
inline constexpr Message ColourBack{692};
inline constexpr Message ColourText{693};
inline constexpr Message ColoursOfServices{694};
inline constexpr Message ColoursOfFiles{695};
inline constexpr Message ColoursOfFaults{696};
inline constexpr Message ColoursOfStock{697};
inline constexpr Message SimulatorFolder{700};
inline constexpr Message StoreFolder{701};
inline constexpr Message ChangeFolderButton{702};
inline constexpr Message RegisteredFolderButton{703}; // the folder of the installation
inline constexpr Message NoFolderButton{704};
inline constexpr Message SimulatorFirst{705};
inline constexpr Message StoreFirst{706};
inline constexpr Message BackupFolderLabel{707};
inline constexpr Message DefaultFolderButton{708};
inline constexpr Message BrowseButton{709};

} // namespace zandor::message
