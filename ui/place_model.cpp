#include "ui/place_model.h"

#include <QFont>

#include "document/formula_text.h"
#include "document/site_comparison.h"
#include "site/regions.h"
#include "ui/qt_text.h"

namespace coltre {

void PlaceModel::set_places(Places places) {
    beginResetModel();
    m_places = std::move(places);
    m_hits = m_places->find(m_typed);
    endResetModel();
}

void PlaceModel::search(const std::string& typed) {
    beginResetModel();
    m_typed = typed;
    if (m_places) m_hits = m_places->find(typed);
    endResetModel();
}

void PlaceModel::set_calculation(const std::optional<LoadInputs>& calculation) {
    m_calculation = calculation;
    if (!m_hits.empty()) emit dataChanged(index(0, qsk), index(rowCount() - 1, qsk));
}

void PlaceModel::toggle_mark(int row) {
    const Place& toggled = place(row);
    std::pair key(toggled.province, toggled.name);
    if (m_marked.erase(key) == 0) m_marked.insert(std::move(key));
    emit dataChanged(index(row, name), index(row, name));
    emit marks_changed();
}

void PlaceModel::clear_marks() {
    m_marked.clear();
    if (!m_hits.empty()) emit dataChanged(index(0, name), index(rowCount() - 1, name));
    emit marks_changed();
}

bool PlaceModel::is_marked(const Place& place) const {
    return m_marked.contains({place.province, place.name});
}

std::vector<const Place*> PlaceModel::marked_places() const {
    std::vector<const Place*> marked;
    if (m_marked.empty()) return marked;
    for (const Place& place : m_places->all())
        if (is_marked(place)) marked.push_back(&place);
    return marked;
}

int PlaceModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_hits.size());
}

int PlaceModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns;
}

QString PlaceModel::text(const PlaceHit& hit, int column) const {
    const Place& place = *hit.place;
    switch (column) {
        case name:
            return qt(place.name);
        case province:
            return qt(place.province);
        case zone:
            return qt(zone_name(place.zone));
        case altitude:
            return qt(place.altitude);
        case qsk: {
            const auto load = m_calculation ? ground_load_at(place, *m_calculation) : std::nullopt;
            return load ? qt(fixed_text(*load, quantities::area_load.decimals)) : QStringLiteral("–");
        }
        default:
            return qt(remark(hit));
    }
}

QVariant PlaceModel::data(const QModelIndex& index, int role) const {
    const PlaceHit& shown = hit(index.row());
    const int column = index.column();
    switch (role) {
        case Qt::DisplayRole:
            return text(shown, column);
        case Qt::ToolTipRole:  // the last column may be cut
            return column == note ? text(shown, column) : QVariant();
        case Qt::CheckStateRole:
            if (column != name) return {};
            return is_marked(*shown.place) ? Qt::Checked : Qt::Unchecked;
        case Qt::TextAlignmentRole:
            if (column != altitude && column != qsk) return {};
            return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
        case Qt::FontRole: {
            if (column != altitude || !shown.place->corrected()) return {};
            QFont corrected;
            corrected.setBold(true);
            return corrected;
        }
        case Qt::AccessibleTextRole: {
            if (column != name) return text(shown, column);
            // Who hears it hears the whole hit at once.
            QStringList all;
            for (int i = name; i < columns; ++i)
                if (const QString words = text(shown, i); !words.isEmpty())
                    all += i == altitude ? words + " m" : i == qsk ? "qsk " + words : words;
            return all.join(", ");
        }
        default:
            return {};
    }
}

QVariant PlaceModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    const char* const headings[columns] = {"Comune",         "Provincia",   "Zona",
                                           "Altitudine [m]", "qsk [kN/m²]", "Note"};
    return QString::fromUtf8(headings[section]);
}

Qt::ItemFlags PlaceModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags usual = QAbstractTableModel::flags(index);
    return index.column() == name ? usual | Qt::ItemIsUserCheckable : usual;
}

bool PlaceModel::setData(const QModelIndex& index, const QVariant& /*value*/, int role) {
    if (role != Qt::CheckStateRole) return false;
    toggle_mark(index.row());
    return true;
}

}  // namespace coltre
