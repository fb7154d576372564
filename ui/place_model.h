#pragma once

#include <QAbstractTableModel>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "document/sensitivity.h"
#include "site/places.h"

namespace coltre {

/// The hits of a search as a table; the box of a row marks its place. Marks outlast searches.
class PlaceModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    enum Column { name, province, zone, altitude, qsk, note, columns };

    using QAbstractTableModel::QAbstractTableModel;

    /// Takes other places, for those that altitudini.txt holds now.
    void set_places(Places places);
    /// Shows the places that were typed, with their ground loads for this calculation.
    void search(const std::string& typed);
    /// @param calculation  nothing where a number of it cannot be used
    void set_calculation(const std::optional<LoadInputs>& calculation);

    /// @param row  one that the table has
    [[nodiscard]] const Place& place(int row) const { return *hit(row).place; }
    void toggle_mark(int row);
    void clear_marks();
    /// In the order of the lists.
    [[nodiscard]] std::vector<const Place*> marked_places() const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

  signals:
    void marks_changed();

  private:
    [[nodiscard]] const PlaceHit& hit(int row) const { return m_hits[static_cast<std::size_t>(row)]; }
    [[nodiscard]] QString text(const PlaceHit& hit, int column) const;
    [[nodiscard]] bool is_marked(const Place& place) const;

    std::optional<Places> m_places;
    std::string m_typed;
    std::vector<PlaceHit> m_hits;
    std::optional<LoadInputs> m_calculation;
    std::set<std::pair<std::string_view, std::string>> m_marked;  // province and name
};

}  // namespace coltre
