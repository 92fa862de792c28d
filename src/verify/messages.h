// The messages of the verifier: their numbers in Langues.lng. The code uses the names alone.
#pragma once

#include "frame/message.h"

namespace zandor::message {

// files of the verifier's lists
inline constexpr Message ReportFilter{100};          // |1 "(*.rtf)|*.rtf|", |2 "(*.txt)|*.txt"
inline constexpr Message ReportTitle{101};           // the title of the file dialog
inline constexpr Message DuplicateEnginesFile{102};  // a file name to propose
inline constexpr Message DuplicateWagonsFile{103};   // a file name to propose
inline constexpr Message MissingOfEnginesFile{104};  // a file name to propose
inline constexpr Message MissingOfWagonsFile{105};   // a file name to propose
inline constexpr Message ReportSaved{106};           // |1 the file
inline constexpr Message ServiceConsist{107};        // |1 the consist's full name and a line break
inline constexpr Message ServiceConsistMissing{108}; // |1 the consist's file and a line break
inline constexpr Message AskMoveUsed{109};           // |1 the file, |2 the route, |3 a line break
inline constexpr Message ConsistFileFilter{110};     // |1 "(*.con)|*.con"
inline constexpr Message EngineFileFilter{111};      // |1 "(*.eng)|*.eng"
inline constexpr Message WagonFileFilter{112};       // |1 "(*.wag)|*.wag"
inline constexpr Message MoveTitle{113};             // the title of the file dialog
inline constexpr Message FileMoved{114};             // |1 the file, |2 where it is now
inline constexpr Message AskDeleteUsed{115};         // |1 the file, |2 the route, |3 a line break
inline constexpr Message TipVerify{144};
inline constexpr Message VerifyButton{220}; // never the same as 221
inline constexpr Message VerifyStop{221};

// faulty values and replacements
inline constexpr Message OfferedFileMissing{284}; // |1 the value, |2 the folder
inline constexpr Message NoPicture{285};
inline constexpr Message ShapeMissing{286};    // |1 the value
inline constexpr Message ValueNotAllowed{287}; // |1 the value
inline constexpr Message PictureFileMissing{
    288}; // |1 the value, |2 the key, |3 a line break, |4 the folder, |5 the extension
inline constexpr Message FaultsRemain{289}; // |1 the file, |2 how many faults are left
inline constexpr Message ChangeWritten{290};
inline constexpr Message ChangeFailed{291}; // |1 the new text or the file, |2 the key
inline constexpr Message NoFaultLeft{292};

// the outside text editor
inline constexpr Message EditorMissing{
    298}; // |1 the editor's file, |2 a line break, |3 the folder where it is looked for
inline constexpr Message EditorFailed{299}; // |1 a line break

// what the verifier finds: a long text, then its summary
inline constexpr Message NameDiffers{
    300}; // |1 the value, |2 the key's line, |3 the file, |4 the line's number
inline constexpr Message NameDiffersShort{301};      // |1 the value; of 300 and 316
inline constexpr Message ValueUnknown{302};          // |1 the value, |2 the key's line, |3 the line's number
inline constexpr Message ValueUnknownShort{303};     // |1 the value
inline constexpr Message ValueEmpty{304};            // |1 the key's line, |2 the line's number
inline constexpr Message ValueEmptyShort{305};       // |1 the key's line
inline constexpr Message NamedFileMissing{306};      // |1 the value, |2 the key's line, |3 the line's number
inline constexpr Message NamedFileMissingShort{307}; // |1 the value
inline constexpr Message QuoteRepairFailed{308};     // |1 the key's line, |2 the file, |3 the line's number
inline constexpr Message MandatoryKeyMissing{
    311}; // |1 the file between blank lines, |2 key, |3 block, |4 a blank line, |5 title
inline constexpr Message FileSelected{313}; // |1 the name in the file
inline constexpr Message ConsistNameDiffers{
    316}; // |1 the value, |2 the key, |3 the file, |4 the line's number
inline constexpr Message NewValueEmpty{317};
inline constexpr Message StockFolderMissing{318}; // |1 the folder, |2 the key's line, |3 the line's number
inline constexpr Message StockFolderMissingShort{319}; // |1 the folder
inline constexpr Message EngineMissing{
    320}; // |1 the stock file, |2 the key's line, |3 the folder, |4 the line's number
inline constexpr Message EngineMissingShort{321}; // |1 the stock file
inline constexpr Message WagonMissing{322};       // as 320
inline constexpr Message WagonMissingShort{323};  // |1 the stock file

// what the verifier does at the moment
inline constexpr Message VerifyStarts{336};
inline constexpr Message VerifyingFile{337}; // |1 the file
inline constexpr Message SeekingDuplicates{338};
inline constexpr Message NextBatch{339};         // |1 files in one pass, |2 files left, |3 a line break
inline constexpr Message NextBatchTextures{340}; // |1 the text so far, |2 a line break
inline constexpr Message NextBatchSounds{341};   // as 340
inline constexpr Message NextBatchAsk{342};      // |1 the text so far
inline constexpr Message CheckingTextures{344};  // |1 the file
inline constexpr Message CheckingSounds{345};    // |1 the file
inline constexpr Message RepairingSounds{346};
inline constexpr Message RecheckingSounds{347};
inline constexpr Message ListingDuplicates{348};

// the lists of duplicate and of missing files
inline constexpr Message OneDuplicate{349};        // |1 a line break
inline constexpr Message ManyDuplicates{350};      // |1 the count, |2 a line break
inline constexpr Message DuplicatesIntro{351};     // |1 a blank line
inline constexpr Message OneOther{352};            // |1 a line break
inline constexpr Message ManyOthers{353};          // |1 the count, |2 a line break
inline constexpr Message NoDuplicates{354};        // |1 a blank line
inline constexpr Message OneTextureMissing{355};   // |1 a blank line
inline constexpr Message ManyTexturesMissing{356}; // |1 the count, |2 a blank line
inline constexpr Message ListingTextures{357};
inline constexpr Message TheFile{358};           // begins a line; a blank and the file's name follow
inline constexpr Message NamesOneMissing{359};   // behind 358; |1 the count, |2 a line break
inline constexpr Message NamesManyMissing{360};  // as 359
inline constexpr Message ListingTexture{361};    // |1 the texture
inline constexpr Message MissingItem{362};       // |1 the name, |2 a line break
inline constexpr Message MissingItemLine{363};   // |1 the file's line, |2 a line break
inline constexpr Message VerifyDone{364};        // |1 a line break, or nothing
inline constexpr Message MissingItemSeek{365};   // |1 a line break and the name
inline constexpr Message OneSoundMissing{366};   // |1 a blank line
inline constexpr Message ManySoundsMissing{367}; // |1 the count, |2 a blank line
inline constexpr Message ListingSound{368};      // |1 the sound, or "..."

// the verifier's closing report: |1 is the text so far, and the count where the text begins with one
inline constexpr Message ReportInvalid{369};               // |2 the count, 0 for none, and a line break
inline constexpr Message ReportOnlyMissing{370};           // |2 a line break
inline constexpr Message ReportOneDuplicate{371};          // |2 a line break
inline constexpr Message ReportManyDuplicates{372};        // |2 a line break
inline constexpr Message ReportOneSoundSetRepaired{373};   // |2 a line break
inline constexpr Message ReportManySoundSetsRepaired{374}; // |2 a line break
inline constexpr Message ReportOneTexture{375};            // |2 a line break
inline constexpr Message ReportManyTextures{376};          // |2 a line break
inline constexpr Message ReportOneSound{377};              // 380 or 381 goes on
inline constexpr Message ReportOneSoundOften{378};         // |2 how often it is named; 380 or 381 goes on
inline constexpr Message ReportManySounds{379};            // |2 how often they are named; 380 or 381 goes on
inline constexpr Message ReportInOneSoundSet{380};     // |2 how many sound sets name them, |3 the text of 640
inline constexpr Message ReportInManySoundSets{381};   // |2 how many sound sets name them, |3 the text of 641
inline constexpr Message ReportOneSoundNowhere{382};   // |2 a line break
inline constexpr Message ReportManySoundsNowhere{383}; // |2 a line break
inline constexpr Message ReportOneQuoteRepaired{384};  // |2 "'Sound ( xxx )'", |3 a line break
inline constexpr Message ReportManyQuotesRepaired{385}; // as 384
inline constexpr Message ReportOneQuoteFailed{386};     // |2 a line break
inline constexpr Message ReportManyQuotesFailed{387};   // |2 a line break
inline constexpr Message RepairingSoundFile{388};       // |1 the file

// folders, services and what the verifier hints
inline constexpr Message HintInvalidConsist{412};
inline constexpr Message HintConsistKey{413};
inline constexpr Message HintInvalidStock{414};
inline constexpr Message HintStockKey{415};

// loading, deleting, exporting
inline constexpr Message AskDeleteFile{536};        // |1 a line break, |2 the file, |3 a blank line
inline constexpr Message ReportKeysMissing{573};    // as 370
inline constexpr Message MissingItemEmptyFile{588}; // |1 the name, |2 a line break

// the verifier's tab
inline constexpr Message TabFiles{606};
inline constexpr Message TabResults{607};
inline constexpr Message KindConsists{610};
inline constexpr Message KindEngines{611};
inline constexpr Message KindWagons{612};
inline constexpr Message KindAll{613};
inline constexpr Message BoxCheckName{614};
inline constexpr Message BoxCheckTextures{615};
inline constexpr Message BoxRepairQuotes{616};
inline constexpr Message BoxCheckSounds{617};
inline constexpr Message BoxRepairSounds{618};
inline constexpr Message BoxCheckDuplicates{619};
inline constexpr Message GroupCheck{620};
inline constexpr Message GroupRepair{621};
inline constexpr Message SelectAll{622};
inline constexpr Message DeselectAll{623};
inline constexpr Message TextEditorButton{624};
inline constexpr Message InvalidFilesLabel{630};
inline constexpr Message InvalidKeysLabel{631};
inline constexpr Message PathLabel{632};
inline constexpr Message FaultLabel{633};
inline constexpr Message MoveFileButton{634};
inline constexpr Message DeleteFileButton{635};
inline constexpr Message SaveReportButton{636};
inline constexpr Message ShowInvalid{637};
inline constexpr Message ShowDuplicates{638};
inline constexpr Message ShowMissing{639};
inline constexpr Message OneSoundSetNote{640};   // ends 380
inline constexpr Message ManySoundSetsNote{641}; // ends 381

// the verifier's tab: finding one's way through lists
inline constexpr Message FilterCandidates{900};
inline constexpr Message CandidatesChosen{901}; // |1 how many, |2 of how many
inline constexpr Message SearchResults{902};
inline constexpr Message AllFaults{903};
inline constexpr Message NextFaultButton{904};
inline constexpr Message CorrectButton{905};
inline constexpr Message ColumnLine{906};
inline constexpr Message ColumnFault{907};
inline constexpr Message ColumnFaults{908}; // how many
inline constexpr Message NoInvalidFile{909};
inline constexpr Message NoFileFits{910};
inline constexpr Message NothingVerified{911};
inline constexpr Message NoCandidates{912};
inline constexpr Message FileTextUnreadable{913};
inline constexpr Message FileText{914};
inline constexpr Message GroupCandidates{915};
inline constexpr Message ColumnCandidateFolder{916};
inline constexpr Message VerifyStopped{917};
inline constexpr Message FaultsInFiles{918};    // |1 faults, |2 files
inline constexpr Message MandatoryKeyName{919}; // |1 the key
inline constexpr Message FilesChosen{920};      // |1 how many
inline constexpr Message GroupKind{924};
inline constexpr Message ReportNotSaved{926}; // |1 the file, |2 a line break

// the correction of faulty values
inline constexpr Message CorrectTitle{740}; // |1 the title
inline constexpr Message FileLabel{741};
inline constexpr Message FaultsLeft{742}; // |1 the count
inline constexpr Message KeyLabel{743};
inline constexpr Message ValueLabel{744};
inline constexpr Message OfferedLabel{745};
inline constexpr Message NewValueLabel{746};

// what is done with the files of the lists
inline constexpr Message AskMoveSeveral{
    850}; // |1 how many files, |2 a line break, |3 their names, |4 the backup folder
inline constexpr Message AskDeleteSeveral{851};   // |1 how many files, |2 a line break, |3 their names
inline constexpr Message AskGoOnUsedSeveral{852}; // as 851, of consists that services use
inline constexpr Message SeveralMoved{853};       // |1 how many files, |2 the backup folder
inline constexpr Message MoveFailed{854};         // |1 the file, |2 a line break, |3 where it was to be
inline constexpr Message MoveNameTaken{855};      // |1 the file that has the name, |2 a line break
inline constexpr Message SeveralNamesTaken{856};  // as 851
inline constexpr Message SeveralNotMoved{857};    // as 851
inline constexpr Message SeveralNotDeleted{858};  // as 851
inline constexpr Message FolderNotOpened{859};    // |1 the folder, |2 a line break

// kinds of fault, as filters
inline constexpr Message KindMandatoryKey{860};
inline constexpr Message KindMissingTexture{861};
inline constexpr Message KindMissingSound{862};
inline constexpr Message KindDuplicate{863};

// what could not be repaired
inline constexpr Message SoundSetUnrepaired{930}; // |1 the file, |2 a line break

// while the outside text editor runs
inline constexpr Message WaitingForEditor{931};

} // namespace zandor::message
