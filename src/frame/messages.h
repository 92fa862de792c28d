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
    StripEmpty = 29,    // hint shown on an empty strip
    SaveFailed = 30,    // |1 the file, |2 a line break
    OpenFailed = 31,    // |1 the file, |2 a line break
    ConsistFilter = 32, // "Consists"
    AboutText = 33,     // |1 the title, |2 a line break

    // buttons of the message window and of others; 145, 219, 496 and 497 get their "&" from the window
    ButtonOk = 35,
    ButtonAbort = 36,
    ButtonRetry = 37,
    ButtonIgnore = 38,

    // the question before a thumbnail is replaced
    ReplaceTitle = 40,
    ReplaceText = 41, // |1 the file
    ReplaceThis = 42,
    KeepThis = 43,
    ReplaceAll = 44,
    KeepAll = 45,

    // the list of consists to open
    OpenCount = 48,           // |1 how many consists
    OpenCountIncomplete = 49, // |1 how many consists, |2 how many of them lack stock
    OpenNone = 50,
    TipUsedByService = 52,
    TipUsedByNoService = 53,
    TipIncomplete = 54,
    OpeningConsist = 55, // |1 the consist's name

    // the about box
    AboutTitle = 56,   // |1 the title
    AboutVersion = 57, // |1 the version
    AboutLicence = 58, // |1 the licence's name
    AboutTrademark = 59,

    // the help window; its Close button is 228
    HelpTitle = 60, // |1 the title
    HelpBack = 61,
    HelpForward = 62,
    HelpContents = 63,
    HelpPageMissing = 64, // |1 the page, |2 a line break

    // the context menu of the strip
    MenuInsertEnd = 65,
    MenuInsertBefore = 66,
    MenuMoveLeft = 67,
    MenuMoveRight = 68,
    MenuFlip = 69,
    MenuRemove = 70,
    MenuFindInList = 71,
    MenuRenumber = 72,

    // the list of stock and its context menu
    StockListEmpty = 76, // instead of rows
    TipUnusedStock = 77,
    TipCab = 78,
    TipNoCab = 79,

    // accessible names, and what the strip says of the selected vehicle
    NameOfStrip = 80,
    NameOfStockList = 81,
    NameOfPreview = 82,
    NameOfStripScroll = 83,
    VehicleMisplaced = 84,     // |1 the line's number, |2 a line break, |3 the line
    StatusVehicle = 86,        // |1 its place, |2 how many there are, |3 its name, |4 its number
    StatusVehicleFlipped = 87, // as 86
    StatusVehicleMissing = 88, // as 86
    StatusNoVehicle = 89,
    VehicleNotInList = 90, // |1 the vehicle's name
    CaptionVehicle = 85,   // of the button that opens the strip's menu

    // warnings about files
    OpenedFaulty = 91,          // |1 the file, |2 a line break, |3 the text of 84, 391 or 392
    AskSaveFaulty = 92,         // |1 the consist's name, |2 a line break
    ThumbnailFolderFailed = 93, // |1 the folder, |2 a line break
    PictureUnreadable = 94,     // |1 the file, |2 a line break
    NotAConsist = 95,           // |1 the file, |2 a line break
    StripTooLong = 98,          // |1 the most pixels that the strip can show
    LanguageGone = 99,          // |1 the language, |2 a line break, |3 the one that serves instead

    // files of the verifier's lists
    ReportFilter = 100,          // |1 "(*.rtf)|*.rtf|", |2 "(*.txt)|*.txt"
    ReportTitle = 101,           // the title of the file dialog
    DuplicateEnginesFile = 102,  // a file name to propose
    DuplicateWagonsFile = 103,   // a file name to propose
    MissingOfEnginesFile = 104,  // a file name to propose
    MissingOfWagonsFile = 105,   // a file name to propose
    ReportSaved = 106,           // |1 the file
    ServiceConsist = 107,        // |1 the consist's full name and a line break
    ServiceConsistMissing = 108, // |1 the consist's file and a line break
    AskMoveUsed = 109,           // |1 the file, |2 the route, |3 a line break
    ConsistFileFilter = 110,     // |1 "(*.con)|*.con"
    EngineFileFilter = 111,      // |1 "(*.eng)|*.eng"
    WagonFileFilter = 112,       // |1 "(*.wag)|*.wag"
    MoveTitle = 113,             // the title of the file dialog
    FileMoved = 114,             // |1 the file, |2 where it is now
    AskDeleteUsed = 115,         // |1 the file, |2 the route, |3 a line break
    ConsistDeleted = 116,        // |1 the file's name
    ColumnServices = 131,
    ColumnConsists = 132,
    TipVerify = 144,
    HelpButton = 145,
    StockListTitle = 173, // followed by " - " and the title
    NextStock = 189,
    ExecutableFilter = 198, // |1 "(*.exe)|*.exe"
    ListHeading = 200,      // |1 the date
    SplashText = 201,       // |1 the legal line
    DescriptionTitle = 202, // |1 the title
    ProgressTitle = 203,    // |1 the title, |2 the root folder
    OpenTitle = 208,        // |1 the title
    ColumnComposition = 209,
    ColumnFile = 210,
    ProgressHead = 213,
    ReadingStock = 214, // also of consists; followed by blanks and the file's name
    FileTypeName = 216, // how the desktop names .con files
    OpenVerb = 217,     // the button, and the desktop's command for .con files
    Cancel = 219,
    VerifyButton = 220, // never the same as 221
    VerifyStop = 221,
    SaveStockList = 227,
    Close = 228,
    ColumnFullName = 233,

    // the folder windows
    ChooseBackupFolder = 250, // the window's title
    FolderDrives = 251,
    FolderFolders = 252,
    FolderChosen = 253,

    // columns and buttons of other windows
    ColumnPower = 258,
    ColumnMass = 259,
    PreviousStock = 263,

    // faulty values and replacements
    OfferedFileMissing = 284, // |1 the value, |2 the folder
    NoPicture = 285,
    ShapeMissing = 286,       // |1 the value
    ValueNotAllowed = 287,    // |1 the value
    PictureFileMissing = 288, // |1 the value, |2 the key, |3 a line break, |4 the folder, |5 the extension
    FaultsRemain = 289,       // |1 the file, |2 how many faults are left
    ChangeWritten = 290,
    ChangeFailed = 291, // |1 the new text or the file, |2 the key
    NoFaultLeft = 292,

    // the list of consists to open
    ConsistSelected = 293, // |1 the consist's full name, |2 its file
    OneEngine = 294,       // |1 the count
    ManyEngines = 295,     // |1 the count
    OneWagon = 296,        // |1 the count
    ManyWagons = 297,      // |1 the count

    // the outside text editor
    EditorMissing = 298, // |1 the editor's file, |2 a line break, |3 the folder where it is looked for
    EditorFailed = 299,  // |1 a line break

    // what the verifier finds: a long text, then its summary
    NameDiffers = 300,           // |1 the value, |2 the key's line, |3 the file, |4 the line's number
    NameDiffersShort = 301,      // |1 the value; of 300 and 316
    ValueUnknown = 302,          // |1 the value, |2 the key's line, |3 the line's number
    ValueUnknownShort = 303,     // |1 the value
    ValueEmpty = 304,            // |1 the key's line, |2 the line's number
    ValueEmptyShort = 305,       // |1 the key's line
    NamedFileMissing = 306,      // |1 the value, |2 the key's line, |3 the line's number
    NamedFileMissingShort = 307, // |1 the value
    QuoteRepairFailed = 308,     // |1 the key's line, |2 the file, |3 the line's number
    MandatoryKeyMissing = 311, // |1 the file between blank lines, |2 key, |3 block, |4 a blank line, |5 title
    FileSelected = 313,        // |1 the name in the file
    ConsistNameDiffers = 316,  // |1 the value, |2 the key, |3 the file, |4 the line's number
    NewValueEmpty = 317,
    StockFolderMissing = 318,      // |1 the folder, |2 the key's line, |3 the line's number
    StockFolderMissingShort = 319, // |1 the folder
    EngineMissing = 320,      // |1 the stock file, |2 the key's line, |3 the folder, |4 the line's number
    EngineMissingShort = 321, // |1 the stock file
    WagonMissing = 322,       // as 320
    WagonMissingShort = 323,  // |1 the stock file

    // the consist under edit
    MissingStockKey = 326, // |1 and |3 a line break, |2 the key
    AskSaveExisting = 329, // |1 the consist's name
    AskSaveNew = 330,
    TotalLength = 331, // |1 metres
    TotalMass = 332,   // |1 the text so far, |2 tons
    MassLabel = 335,   // of the properties

    // what the verifier does at the moment
    VerifyStarts = 336,
    VerifyingFile = 337, // |1 the file
    SeekingDuplicates = 338,
    NextBatch = 339,         // |1 files in one pass, |2 files left, |3 a line break
    NextBatchTextures = 340, // |1 the text so far, |2 a line break
    NextBatchSounds = 341,   // as 340
    NextBatchAsk = 342,      // |1 the text so far
    CheckingTextures = 344,  // |1 the file
    CheckingSounds = 345,    // |1 the file
    RepairingSounds = 346,
    RecheckingSounds = 347,
    ListingDuplicates = 348,

    // the lists of duplicate and of missing files
    OneDuplicate = 349,        // |1 a line break
    ManyDuplicates = 350,      // |1 the count, |2 a line break
    DuplicatesIntro = 351,     // |1 a blank line
    OneOther = 352,            // |1 a line break
    ManyOthers = 353,          // |1 the count, |2 a line break
    NoDuplicates = 354,        // |1 a blank line
    OneTextureMissing = 355,   // |1 a blank line
    ManyTexturesMissing = 356, // |1 the count, |2 a blank line
    ListingTextures = 357,
    TheFile = 358,           // begins a line; a blank and the file's name follow
    NamesOneMissing = 359,   // behind 358; |1 the count, |2 a line break
    NamesManyMissing = 360,  // as 359
    ListingTexture = 361,    // |1 the texture
    MissingItem = 362,       // |1 the name, |2 a line break
    MissingItemLine = 363,   // |1 the file's line, |2 a line break
    VerifyDone = 364,        // |1 a line break, or nothing
    MissingItemSeek = 365,   // |1 a line break and the name
    OneSoundMissing = 366,   // |1 a blank line
    ManySoundsMissing = 367, // |1 the count, |2 a blank line
    ListingSound = 368,      // |1 the sound, or "..."

    // the verifier's closing report: |1 is the text so far, and the count where the text begins with one
    ReportInvalid = 369,               // |2 the count, 0 for none, and a line break
    ReportOnlyMissing = 370,           // |2 a line break
    ReportOneDuplicate = 371,          // |2 a line break
    ReportManyDuplicates = 372,        // |2 a line break
    ReportOneSoundSetRepaired = 373,   // |2 a line break
    ReportManySoundSetsRepaired = 374, // |2 a line break
    ReportOneTexture = 375,            // |2 a line break
    ReportManyTextures = 376,          // |2 a line break
    ReportOneSound = 377,              // 380 or 381 goes on
    ReportOneSoundOften = 378,         // |2 how often it is named; 380 or 381 goes on
    ReportManySounds = 379,            // |2 how often they are named; 380 or 381 goes on
    ReportInOneSoundSet = 380,         // |2 how many sound sets name them, |3 the text of 640
    ReportInManySoundSets = 381,       // |2 how many sound sets name them, |3 the text of 641
    ReportOneSoundNowhere = 382,       // |2 a line break
    ReportManySoundsNowhere = 383,     // |2 a line break
    ReportOneQuoteRepaired = 384,      // |2 "'Sound ( xxx )'", |3 a line break
    ReportManyQuotesRepaired = 385,    // as 384
    ReportOneQuoteFailed = 386,        // |2 a line break
    ReportManyQuotesFailed = 387,      // |2 a line break
    RepairingSoundFile = 388,          // |1 the file

    // loading, and what is known of a vehicle
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

    // folders, services and what the verifier hints
    FindSimulator = 409,
    CreatePictureHint = 410,
    ServiceConsistNotFound = 411, // |1 the consist's file, |2 a line break, |3 the file looked for
    HintInvalidConsist = 412,
    HintConsistKey = 413,
    HintInvalidStock = 414,
    HintStockKey = 415,
    FillingStockList = 416,

    // the consist under edit
    SimulatorNotFound = 417, // |1 "Microsoft Train Simulator", |2 a line break
    ConsistProtected = 418,  // |1 the consist's full name, |2 the route, |3 a line break
    AskDeleteConsist = 419,  // |1 the consist's full name, |2 the file's name, |3 a line break
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
    BackupKept = 433,       // |1 a line break, |2 the backup's path
    CompositionJoint = 435, // between engines and wagons, with unbreakable blanks
    FindTrainStore = 441,   // the window's title
    SameRoots = 442,        // |1 the program whose folder it is already
    StockMissing = 443,
    VehicleMissing = 444,

    // routes
    ReadingServices = 446, // stands between a route and a file
    Activities = 450,      // a column, and as 446
    ColumnLooseStock = 451,

    // the thumbnails control
    CheckingThumbnails = 455,     // |1 the title
    OneThumbnailMoved = 456,      // |1 the count, |2 "Thumbnails", |3 "Unusable_Thumbnails", |4 the title
    ManyThumbnailsMoved = 457,    // as 456
    OneThumbnailRestored = 458,   // as 456
    ManyThumbnailsRestored = 459, // as 456
    ThumbnailsOf = 460,           // followed by "... Train Simulator" or "... Train Store"

    // the stock search and the stock list
    ColumnPath = 468,
    ColumnFolder = 469,
    ColumnStockFile = 470,
    ColumnStockName = 471,
    ColumnConsistFile = 472,
    ColumnConsistName = 473,
    ColumnMissingStock = 474,
    ColumnRoute = 475,
    ColumnActivityFile = 476,
    ColumnActivity = 477,
    ColumnMissingConsist = 478,
    ColumnWantedStock = 479, // the stock that is missing, with its folder
    ColumnType = 480,
    ColumnStockFolder = 482,
    ResultCount = 483, // |1 the count

    // what can be done with a result of the search
    MenuEditFile = 484,
    MenuOpenFolder = 485,
    ExportDone = 487,
    ExportFailed = 488,
    TipResult = 489,
    TextFilter = 490,   // |1 "(*.txt)|*.txt"
    MenuSaveList = 491, // also the title of the file dialog
    PickStock = 492,
    MenuOpenConsist = 493, // |1 the consist's file, |2 its name

    // the question for the other folder, and answers
    AskOtherRoot = 494, // |1 the title, |2 the other folder, |3 to |5 a line break
    DoNotAskAgain = 495,
    Yes = 496,
    No = 497,

    // loading, deleting, exporting
    StepDone = 498,
    ColumnConsist = 499,
    ReadingConsists = 502,
    ReadingRoute = 503,  // followed by a blank and the route's name
    AskDeleteFile = 536, // |1 a line break, |2 the file, |3 a blank line
    CreatePicture = 549, // followed by "..."
    PictureCreated = 551,
    SpreadsheetFilter = 565, // |1 "(*.xls)|*.xls"
    StockTextFilter = 566,   // |1 "(*.txt)|*.txt"
    ColumnCab = 567,
    ColumnLength = 568,
    ColumnBrakeSystem = 569,
    ColumnEngineType = 570,
    WritingSpreadsheet = 571,
    WritingText = 572,
    ReportKeysMissing = 573,    // as 370
    TooManyFiles = 586,         // |1 the path, |2 the limit
    MissingItemEmptyFile = 588, // |1 the name, |2 a line break

    // the tool window and its tabs (our own numbers)
    ToolTitle = 600, // |1 the title
    TabVerify = 601,
    TabRoutes = 602,
    TabSearch = 603,
    TabDisplay = 604,
    TabOthers = 605,
    TabFiles = 606,
    TabResults = 607,

    // the verifier's tab
    KindConsists = 610,
    KindEngines = 611,
    KindWagons = 612,
    KindAll = 613,
    BoxCheckName = 614,
    BoxCheckTextures = 615,
    BoxRepairQuotes = 616,
    BoxCheckSounds = 617,
    BoxRepairSounds = 618,
    BoxCheckDuplicates = 619,
    GroupCheck = 620,
    GroupRepair = 621,
    SelectAll = 622,
    DeselectAll = 623,
    TextEditorButton = 624,
    InvalidFilesLabel = 630,
    InvalidKeysLabel = 631,
    PathLabel = 632,
    FaultLabel = 633,
    MoveFileButton = 634,
    DeleteFileButton = 635,
    SaveReportButton = 636,
    ShowInvalid = 637,
    ShowDuplicates = 638,
    ShowMissing = 639,
    OneSoundSetNote = 640,   // ends 380
    ManySoundSetsNote = 641, // ends 381

    // the tab of routes, and replacements
    RouteNamesLabel = 650,
    OpenConsistFileButton = 651,
    ReplaceConsistButton = 652,
    ReplaceVehicleButton = 653,
    ReplacementStockLabel = 654,
    WeightLabel = 655,
    LengthLabel = 656,
    ColumnBrakesCapitals = 657,
    ColumnCouplingCapitals = 658,

    // the tab of the stock search
    SearchLabel = 660,
    BoxFileName = 661,
    BoxFolderName = 662,
    BoxDescription = 663,
    StockListButton = 664,
    SearchText = 665,
    SearchUsers = 666,
    SearchBrokenConsists = 667,
    SearchBrokenActivities = 668,
    SearchBrokenServices = 669,
    SearchMissingStock = 670,
    SearchUnusedConsists = 671,
    MenuOpenConsistPlain = 672, // 493 without a name

    // the tabs of settings
    BoxPrintName = 680,
    BoxPrintNumber = 681,
    BoxNoAlertCoupling = 682, // checked: no warning
    BoxPrintGreen = 683,
    BoxCanvas = 684,
    BoxOptimize = 685,
    BoxThumbnails = 686,
    BoxAssociate = 687,
    BoxBackup = 688,
    BoxNewFile = 689,
    LanguageLabel = 690,
    GroupColours = 691,
    ColourBack = 692,
    ColourText = 693,
    ColoursOfServices = 694,
    ColoursOfFiles = 695,
    ColoursOfFaults = 696,
    ColoursOfStock = 697,
    SimulatorFolder = 700,
    StoreFolder = 701,
    ChangeFolderButton = 702,
    RegisteredFolderButton = 703, // the folder of the installation
    NoFolderButton = 704,
    SimulatorFirst = 705,
    StoreFirst = 706,
    BackupFolderLabel = 707,
    DefaultFolderButton = 708,
    BrowseButton = 709,

    // the properties of a stock file
    PropertiesTitle = 720, // |1 the stock's name
    NameLabel = 721,
    PowerLabel = 722,
    UnitTons = 723,
    DescriptionLabel = 724,
    ApplyButton = 725,
    HeaderWrong = 726,

    // the correction of faulty values
    CorrectTitle = 740, // |1 the title
    FileLabel = 741,
    FaultsLeft = 742, // |1 the count
    KeyLabel = 743,
    ValueLabel = 744,
    OfferedLabel = 745,
    NewValueLabel = 746,

    // the description window and the export of the stock list
    CanvasMenu = 760,
    CanvasBackColour = 761,
    CanvasOwnOptions = 762,
    CanvasAbout = 763,
    CanvasDistance = 764,
    ExportTitle = 780,  // the title of the file dialog and of the workbook
    DeleteFailed = 790, // |1 the file, |2 a line break

    // saving, and figures
    AskNoBackup = 830, // |1 the consist's name, |2 the backup folder, |3 a line break
    DecimalMark = 831, // "." or ","
    // what no consist file can hold
    StockUnwritable = 820, // |1 the stock's folder and file, |2 a line break
    // vehicles that a consist file doesn't name
    VehicleNameless = 870,      // as 84
    OpenedWithoutVehicle = 871, // |1 the file, |2 a line break, |3 the text of 870
    // files that aren't read
    FileTooLarge = 800,    // |1 its size in megabytes, |2 the most that is read
    NoMemoryForFile = 801, // as 800 and 802, the reason that 803 gives
    FileUnreadable = 802,
    ConsistUnread = 803,    // |1 the file, |2 a line break, |3 the text of 800, 801 or 802
    FilesPassedOver = 804,  // |1 the lines of 805 and 806, each after a line break
    FileAndSize = 805,      // |1 the file, |2 its size in megabytes
    AndMoreFiles = 806,     // |1 how many files aren't named
    SettingsTooLarge = 807, // |1 the file, |2 a line break, |3 its size in megabytes
};

} // namespace zandor
