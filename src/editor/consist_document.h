// The consist under edit: its strip of vehicles, the names, the drag in hand, and the state of the controls
// that show it. Windows call the operations and show what stands here; they hold no state of their own.
#pragma once

#include "catalogue/catalogue.h"
#include "catalogue/pictures.h"
#include "simfiles/rame.h"

#include <optional>
#include <string>
#include <vector>

namespace zandor {

// One position of the strip.
struct Vehicule {
    bool FromSimulator = false; // MaterielIndex belongs to the snapshot of the simulator root
    bool Missing = false;       // the file that the consist names was found nowhere
    bool ImageIsResource = false;
    bool ImageIsGeneric = false;
    bool Flipped = false;
    std::string Name; // not empty on any occupied slot
    std::string Coupling;
    int MaterielIndex = 0;
    int Number = 0; // UiD
    int Width = 0;  // pixels, when inserted
    std::string Picture;
    int DrawnWidth = 0; // pixels, at the last drawing
    std::string Mass;
    std::string Size;
    std::string Spare;
    std::string EngineVariables;    // kept from the file
    std::optional<RameItem> origin; // of a vehicle read from a file; what a Missing one is written back from
};

// Height of the strip in pixels: the pictures' 96, and under them the room of the brake bars, the highest of
// which lies 27 above the bottom. A name, whose foot is 30 above it, ends where the pictures do.
inline constexpr int StripHeight = 126;

// What the main window's controls show besides the strip. Operations write it, the window reads it.
struct EditorControls {
    std::string shortName;        // tbNAME
    bool shortNameEnabled = true; // false for a consist that has a file
    bool shortNameRed = false;    // it shows the double name
    std::string fullName;         // tbFULL_NAME
    int durability = 1000;        // Slider1: 1000 for 1.00000
    bool saveEnabled = false;     // cmdSAVE
    bool deleteEnabled = false;   // cmdDELETE
    bool numberEnabled = false;   // cmdNUMEROTATION
    int scrollValue = 0;          // HScrollRAME, pixels
    int scrollMaximum = 0;
    int scrollSmallStep = 1, scrollLargeStep = 1;
    bool scrollEnabled = false;
    int viewWidth = 800; // inner size of PicRAME in pixels; the window keeps it up to date
    int viewHeight = StripHeight;
    std::string totals;     // lblLongueurNewRame
    std::string resistance; // lblRESISTANCE
};

struct ConsistDocument {
    Rame rame;
    std::vector<RameItem> items{1}; // as read
    std::vector<Vehicule> Vehicules{1};
    std::vector<StockPair> RameStockOld, RameStockNew;
    EditorControls controls;
    bool Loading = false; // OpenFileRame is running: no renumbering
    int NextNumber = 0;
    int PictureWidth = 0;
    int StripWidth = 0;
    bool DragActive = false;
    int DragSource = 0;
    int DragTarget = 0;
    bool DragAtFront = false;
    bool DragAtEnd = false;
    bool StripPressed = false;
    unsigned stripChanges = 0; // grows when the picture of the strip has to be drawn anew
    int selected = -1;         // position of the vehicle that the keyboard works on; -1: none
    bool openedFromOptions = false;
    bool faultyFile = false; // a part of the opened file could not be read
    bool noBackup = false;   // the user wants no copy of a file that a save replaces
};

// Everything an editing operation works on.
struct Editor {
    Frame& frame;
    Catalogue& catalogue;
    ConsistDocument& document;
};

struct StripHit {
    bool hit = false;
    int index = 0; // only with hit
    bool atEnd = false;
    bool atFront = false;
};

int vehicleCount(const ConsistDocument& document); // occupied positions
bool hasVehicles(const ConsistDocument& document);
const Materiel* materielOf(const Editor& editor, const Vehicule& vehicule); // nullptr for a Missing one
bool isEngine(const Editor& editor, const Vehicule& vehicule);

StripHit HitTestStrip(const ConsistDocument& document, int x, int y);

// Adds a vehicle at the drag's target or at the end: entry `index` of Materiels, of the simulator snapshot,
// or with neither a Missing one made from `origin`.
// Outside a loading it becomes the selected one.
void InsertVehicule(Editor& editor, int index, bool fromMateriels, bool fromSimulator,
                    const RameItem* origin = nullptr);
// False: refused for its couplings, nothing changed.
bool MoveVehicule(Editor& editor, int from, int to);
void RemoveVehicule(Editor& editor); // the one at DragSource
void RenumberVehicles(Editor& editor);
void numberButtonPressed(Editor& editor); // cmdNUMEROTATION

// A drag from the stock list: over the strip at x, y; dropped there; double click (to the end). False:
// refused.
void dragOverStrip(Editor& editor, int x, int y);
bool dropStock(Editor& editor, int materielIndex);
bool appendStock(Editor& editor, int materielIndex);
void clearDrag(ConsistDocument& document);

// The mouse on the strip.
void pressStrip(Editor& editor, int x, int y);
void moveOnStrip(Editor& editor, int x, int y); // left button down
enum class ReleaseZone { Preview, Strip, Elsewhere };
// Left button up. Returns the Materiels index to select in the list after a release on the preview, -1 when
// the panel is to be emptied, nothing otherwise.
std::optional<int> releaseStrip(Editor& editor, ReleaseZone zone);
void flipVehicule(Editor& editor, int x, int y); // right button up
void flipVehiculeAt(Editor& editor, int position);
// The Materiels index of a vehicle, -1 when the catalogue has none for it; nothing for a Missing one.
std::optional<int> lookUpVehicule(const ConsistDocument& document, int position);
std::string stripToolTip(const ConsistDocument& document, int x, int y);

// Where the drop mark stands, in pixels of the visible strip; nothing when the vehicle wouldn't move.
std::optional<int> dropMarkPosition(const ConsistDocument& document);
void AutoScrollStrip(ConsistDocument& document, int x, int y);

// The width of the strip's picture in pixels.
int stripPictureWidth(const ConsistDocument& document);
// True when the strip is longer than its picture may be; never where no window shows it.
bool endIsHidden(const ConsistDocument& document);

// What a redraw brings besides the drawing: numbers, totals, scroll range. Asks for the drawing.
void updateStrip(Editor& editor);
// Length and mass of all vehicles, in figures with this decimal mark; without what isn't known.
std::string totalsText(const Editor& editor, std::string_view mark);
void ShowTotals(Editor& editor);
void updateResistance(Editor& editor);

// Changes of the text boxes and the slider.
std::string_view withinFileName(std::string_view name); // cut to what a file's name can be long
std::string filterShortName(std::string_view text);     // without the characters that a file name can't hold
void changeShortName(Editor& editor, std::string_view text);
void changeFullName(Editor& editor, std::string_view text);
void changeDurability(Editor& editor, int value);

void ResetEditor(Editor& editor);
void initialiseDocument(Editor& editor); // the defaults of a new consist at start
// False: the user wanted to save first and that did not complete.
bool newConsist(Editor& editor);
// The question on close, then the closing settings with what else is to be kept. False: stay open.
bool closeEditor(Editor& editor, std::vector<IniValue> alsoKept = {});

// After a change of roots: empties the editor, then takes the snapshot or loads. False: the user ended the
// load.
bool ReloadAfterOptions(Editor& editor);

} // namespace zandor
