// The message numbers of Langues.lng, one named constant each; the code uses the names alone.
#pragma once

namespace zandor {

enum class Message : int {
    // captions and tool tips of the main window (our own numbers)
    CaptionNew = 1,
    CaptionOpen = 2,
    CaptionSave = 3,
    CaptionDelete = 4,
    CaptionOptions = 5,
    CaptionHelp = 6,
    CaptionAbout = 7,
    CaptionQuit = 8,
    CaptionNumber = 9,
    CaptionShortName = 10,
    CaptionFullName = 11,
    CaptionDurability = 12,
    CaptionStockClass = 13,
    ColumnName = 14,
    ColumnBrakes = 15,
    ColumnCoupling = 16,
    TipNew = 21,
    TipOpen = 22,
    TipSave = 23,
    TipDelete = 24,
    TipNumber = 25,
    TipStrip = 26,
    TipStockList = 27,
    TipDurability = 28,
    StripEmpty = 29,   // hint shown on an empty strip
    SaveFailed = 30,   // |1 the file, |2 a line break
    OpenFailed = 31,   // |1 the file, |2 a line break
    ConsistFilter = 32, // "Consists"
    AboutText = 33,    // |1 the title, |2 a line break
    BackupFailed = 34, // |1 the backup folder, |2 a line break

    HelpButton = 145,
    ExecutableFilter = 198, // |1 "(*.exe)|*.exe"
    SplashText = 201,       // |1 the legal line
    ProgressTitle = 203,    // |1 the title, |2 the root folder
    ProgressHead = 213,
    ReadingStock = 214, // followed by a blank and the file name
    Cancel = 219,
    MissingStockKey = 326, // |1 and |3 a line break, |2 the key
    AskSaveExisting = 329, // |1 the consist's name
    AskSaveNew = 330,
    TotalLength = 331, // |1 metres
    TotalMass = 332,   // |1 the text so far, |2 tons
    ListingEngines = 389,
    ListingWagons = 390,
    BracketOpenMissing = 391,  // |1 the line's number, |2 a line break, |3 the line
    BracketCloseMissing = 392, // as 391
    Resistance = 394,          // |1 the figure
    BrakeSystem = 395,
    BrakeAirSinglePipe = 396,
    BrakeAirTwinPipe = 397,
    BrakeVacuumSinglePipe = 398,
    BrakeVacuumTwinPipe = 399,
    Coupling = 400,
    Length = 401, // |1 metres
    BrakeAirPiped = 402,
    BrakeVacuumPiped = 403,
    CouplingAutomatic = 404,
    CouplingBar = 405,
    CouplingChain = 406,
    CouplingHydraulic = 407,
    Mass = 408, // |1 tons
    FindSimulator = 409,
    SimulatorNotFound = 417, // |1 "Microsoft Train Simulator", |2 a line break
    ClassElectric = 420,
    ClassDiesel = 421,
    ClassSteam = 422,
    ClassCarriage = 423,
    ClassFreight = 424,
    ClassTender = 425,
    CouplingsDoNotFit = 428,
    ShortNameEmpty = 429,
    FullNameEmpty = 430,
    NameTaken = 431, // |1 the file name
    ConsistSaved = 432,
    BackupKept = 433, // |1 a line break, |2 the backup's path
    StockMissing = 443,
    VehicleMissing = 444,
    Yes = 496,
    No = 497,
    StepDone = 498,
    ReadingConsists = 502,
    TooManyFiles = 586, // |1 the path, |2 the limit
};

} // namespace zandor
