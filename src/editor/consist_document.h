// The consist under edit: its strip of vehicles, the names, the drag in hand, and the state of the controls
// that show it. Windows call the operations, show what stands here, and tell what an operation returns; they
// hold nothing of the consist themselves.
#pragma once

#include "catalogue/catalogue.h"
#include "catalogue/pictures.h"
#include "frame/finding.h"
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
    std::string Name; // never empty
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
    bool deleteEnabled = false;   // cmdDELETE
    bool numberEnabled = false;   // cmdNUMEROTATION
    std::string totals;           // lblLongueurNewRame
    std::string resistance;       // lblRESISTANCE
};

struct ConsistDocument {
    Rame rame;
    std::vector<RameItem> items; // as read
    std::vector<Vehicule> Vehicules;
    std::vector<StockPair> RameStockOld, RameStockNew;
    EditorControls controls;
    bool Modified = false;     // there are unsaved changes: cmdSAVE is enabled
    bool HasFile = false;      // it came from a file or was saved to one
    std::string ConsistFolder; // where that file lies; with a trailing "\"
    bool Loading = false;      // OpenFileRame is running: no renumbering
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

// A point of the strip: its x in pixels from the strip's own beginning, however far it is scrolled. Nothing:
// the pointer isn't on what is seen of the strip.
using StripPoint = std::optional<int>;

struct StripHit {
    bool hit = false;
    int index = 0; // only with hit
    bool atEnd = false;
    bool atFront = false;
};

int vehicleCount(const ConsistDocument& document);
bool hasVehicles(const ConsistDocument& document);
const Materiel* materielOf(const Editor& editor, const Vehicule& vehicule); // nullptr for a Missing one
bool isEngine(const Editor& editor, const Vehicule& vehicule);

StripHit HitTestStrip(const ConsistDocument& document, StripPoint point);

// Adds a vehicle at the drag's target or at the end: entry `index` of Materiels, of the simulator snapshot,
// or with neither a Missing one made from `origin`.
// Outside a loading it becomes the selected one. False: the strip is full.
bool InsertVehicule(Editor& editor, int index, bool fromMateriels, bool fromSimulator,
                    const RameItem* origin = nullptr);
// Not done: refused for its couplings, nothing changed.
Outcome MoveVehicule(Editor& editor, int from, int to);
void RemoveVehicule(Editor& editor); // the one at DragSource
void RenumberVehicles(Editor& editor);
void numberButtonPressed(Editor& editor); // cmdNUMEROTATION

// A drag from the stock list: over the strip; dropped there; double click (to the end). Not done: refused.
void dragOverStrip(Editor& editor, StripPoint point);
Outcome dropStock(Editor& editor, int materielIndex);
Outcome appendStock(Editor& editor, int materielIndex);
void clearDrag(ConsistDocument& document);

// The mouse on the strip.
void pressStrip(Editor& editor, StripPoint point);
void moveOnStrip(Editor& editor, StripPoint point); // left button down
enum class ReleaseZone { Preview, Strip, Elsewhere };
struct [[nodiscard]] Release {
    // The Materiels index to select in the list after a release on the preview, -1 when the panel is to be
    // emptied, nothing otherwise.
    std::optional<int> lookedUp;
    Findings told;
};
Release releaseStrip(Editor& editor, ReleaseZone zone); // left button up
void flipVehicule(Editor& editor, StripPoint point);    // right button up
void flipVehiculeAt(Editor& editor, int position);
// The Materiels index of a vehicle, -1 when the catalogue has none for it; nothing for a Missing one.
std::optional<int> lookUpVehicule(const ConsistDocument& document, int position);
std::string stripToolTip(const ConsistDocument& document, StripPoint point);

// Where the drop mark begins; nothing when the vehicle wouldn't move.
StripPoint dropMarkPosition(const ConsistDocument& document);

// What a redraw brings besides the drawing: numbers and totals. Asks for the drawing.
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
// Not done: the user wanted to save first and that did not complete.
Outcome newConsist(Editor& editor);
// The question on close, then the closing settings with what else is to be kept. Not done: stay open.
Outcome closeEditor(Editor& editor, std::vector<IniValue> alsoKept = {});

// After a change of roots: empties the editor, then takes the snapshot or loads. False: the user ended the
// load.
bool ReloadAfterOptions(Editor& editor);

} // namespace zandor
