#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/program_cells.h"
#include "platform/failure.h"
#include "site/todays_names.h"

// All municipalities at once: found by their names of 1996 or of today, with the altitudes in force.
namespace coltre {

/// A municipality as the lists of the windows offer it.
struct Place {
    std::string_view province;
    SnowZone zone = 0;
    std::string name;
    std::string altitude;    ///< m, as the file writes it
    std::string listed;      ///< that of the built-in table; empty where the table does not know the name
    bool selectable = true;  ///< false: the file's block of the province cannot be read
    Today today;
    std::string namesakes;  ///< other provinces that have the name: "Trento, Cuneo"

    /// The engineer has another altitude in altitudini.txt.
    [[nodiscard]] bool corrected() const { return altitude != listed; }
};

/// What a search found.
struct PlaceHit {
    const Place* place;
    std::string_view later_name;  ///< by which it was found; empty: by its own
    bool part_of_it = false;      ///< the later name is that of a municipality which got but a part of it
};

/// What the municipality is called today, in Italian: "oggi Valsamoggia (dal 2014)". Empty if it still has
/// its name.
std::string name_of_today(const PlaceHit& hit);

/// What is to be known of a hit, in Italian: its name of today, its namesakes. Empty if nothing is.
std::string remark(const PlaceHit& hit);

/// The municipalities of an altitude file, by provinces in the order of the lists, in the order of the file.
class Places {
  public:
    /// @param file  bytes of an altitude file; a province that cannot be read from it has the municipalities
    ///              of the built-in table
    explicit Places(std::string_view file);

    [[nodiscard]] std::span<const Place> all() const { return m_places; }

    /// The municipalities whose names, of 1996 or later, are or hold what was typed, those that are it first,
    /// then those that start with it. Case, accents, apostrophes, hyphens and blanks play no part. Its last
    /// words may be the province or the plate of today's: "samone trento", "monza mb"; where nothing else is
    /// found, the beginning of the province. All of them for an empty text, none for one of more words than
    /// any name has. Hits are valid as long as this.
    [[nodiscard]] std::vector<PlaceHit> find(std::string_view typed) const;

  private:
    struct Alias {
        std::string_view name;
        bool founded;
        std::string folded;
        std::vector<std::uint32_t> places;  ///< in m_places
    };
    /// What was typed, folded.
    struct Query {
        std::string name;
        std::string province;  ///< or its beginning
        bool whole_province;
    };

    void add_province(std::string_view file, std::string_view province);
    void add_aliases();
    void add_namesakes();
    [[nodiscard]] std::vector<PlaceHit> find(const Query& query) const;

    std::vector<Place> m_places;
    std::vector<std::string> m_folded;  // names of the places
    std::vector<Alias> m_aliases;
};

/// The places of the altitudini.txt in force: as it stands now, or as it would be written if it is missing.
struct PlacesInForce {
    Places places;
    Failure failure;  ///< why the file cannot be read: the built-in table answers
};
PlacesInForce places_in_force(std::string_view ProgramDirectory);

}  // namespace coltre
