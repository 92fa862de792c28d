// The messages of the frame: their numbers in Langues.lng. The code uses the names alone.
#pragma once

#include "frame/message.h"

namespace zandor::message {

// captions and tool tips of the main window (our own numbers)
inline constexpr Message AboutText{33}; // |1 the title, |2 a line break

// buttons of the message window and of others; 145, 219, 496 and 497 get their "&" from the window
inline constexpr Message ButtonOk{35};
inline constexpr Message ButtonAbort{36};
inline constexpr Message ButtonRetry{37};
inline constexpr Message ButtonIgnore{38};

// the question before a thumbnail is replaced
inline constexpr Message ReplaceTitle{40};
inline constexpr Message ReplaceText{41}; // |1 the file
inline constexpr Message ReplaceThis{42};
inline constexpr Message KeepThis{43};
inline constexpr Message ReplaceAll{44};
inline constexpr Message KeepAll{45};

// the about box
inline constexpr Message AboutTitle{56};   // |1 the title
inline constexpr Message AboutVersion{57}; // |1 the version
inline constexpr Message AboutLicence{58}; // |1 the licence's name
inline constexpr Message AboutTrademark{59};

// the help window; its Close button is 228
inline constexpr Message HelpTitle{60}; // |1 the title
inline constexpr Message HelpBack{61};
inline constexpr Message HelpForward{62};
inline constexpr Message HelpContents{63};
inline constexpr Message HelpPageMissing{64}; // |1 the page, |2 a line break

// warnings about files
inline constexpr Message LanguageGone{99}; // |1 the language, |2 a line break, |3 the one that serves instead

inline constexpr Message HelpButton{145};
inline constexpr Message ExecutableFilter{198}; // |1 "(*.exe)|*.exe"
inline constexpr Message ProgressTitle{203};    // |1 the title, |2 the root folder
inline constexpr Message ProgressHead{213};
inline constexpr Message FileTypeName{216}; // how the desktop names .con files
inline constexpr Message OpenVerb{217};     // the button, and the desktop's command for .con files
inline constexpr Message Cancel{219};
inline constexpr Message Close{228};

// the folder windows
inline constexpr Message ChooseBackupFolder{250}; // the window's title
inline constexpr Message FolderDrives{251};
inline constexpr Message FolderFolders{252};
inline constexpr Message FolderChosen{253};

// folders, services and what the verifier hints
inline constexpr Message FindSimulator{409};

// the consist under edit
inline constexpr Message SimulatorNotFound{417}; // |1 "Microsoft Train Simulator", |2 a line break
inline constexpr Message FindTrainStore{441};    // the window's title

// the question for the other folder, and answers
inline constexpr Message AskOtherRoot{494}; // |1 the title, |2 the other folder, |3 to |5 a line break
inline constexpr Message DoNotAskAgain{495};
inline constexpr Message ShowNoMore{921}; // under a message that may be the first of many
inline constexpr Message Yes{496};
inline constexpr Message No{497};

// saving, and figures
inline constexpr Message DecimalMark{831}; // "." or ","

// files that aren't read
inline constexpr Message SettingsTooLarge{807}; // |1 the file, |2 a line break, |3 its size in megabytes

} // namespace zandor::message
