#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "engine/calculation.h"

// The seven calculations, one row each: what they take and show, under the names that windows, command and
// documents use.
namespace coltre {

/// How the text of an entry becomes a number (text/number_reading.h).
enum class Reading { lenient, strict };

/// One number that a calculation takes.
struct Entry {
    std::string_view symbol;   ///< as formulas and messages call it: "alfa1"
    std::string_view key;      ///< key of a batch request, and option of the command: "larghezza"
    std::string_view control;  ///< its field in the window: "inputalfa1"
    std::string_view meaning;  ///< Italian, with the unit
    std::string_view unit;     ///< "°", "m", "kN/m²"
    Reading reading;
    double Entries::*number;
};

/// A result label and what it shows, always in kN and m: the unit selector acts on the reports alone.
struct ResultPlace {
    std::string_view label;  ///< "carico_1"
    const ResultCell* result;
};

/// The windows with a calculate button.
enum class Window { main, special_cases };

/// What sets one calculation apart from the others, besides its formulas.
struct Description {
    Kind kind;
    std::string_view name;                ///< subcommand, and "calcolo" of a batch request
    std::string_view meaning;             ///< Italian
    Window window;                        ///< where it is
    int page;                             ///< its tab of `SSTab1`, or page of `cartelle`, from 0
    std::span<const Entry> entries;       ///< in the order in which they are read
    std::span<const ResultPlace> places;  ///< the labels that a complete calculation refreshes
    std::string_view sketch;              ///< name of its sketch in the window
    std::string_view picture;             ///< name that its sketch is saved under first
    bool needs_ground_load;               ///< false: qsk plays no part in its results
    std::string_view example;             ///< options of an example of the command
    std::string_view manual_heading;      ///< the manual's heading of it, as a page links to it
    std::string_view quotation{};         ///< what its page and the document quote of the circular
};

/// The rows, in the order of the tabs and pages.
std::span<const Description> calculations();

const Description& describe(Kind kind);

/// The calculation on this tab or page of the window.
/// @param page  one that the window has
Kind kind_of(Window window, int page);

/// The calculation of this name; nothing if there is none.
std::optional<Kind> kind_of(std::string_view name);

}  // namespace coltre
