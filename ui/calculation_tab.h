#pragma once

#include <QObject>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "calculate/click.h"
#include "ui/number_field.h"
#include "ui/result_label.h"
#include "ui/results_copy.h"
#include "ui/sketch_widget.h"
#include "ui/user_dialogs.h"

namespace coltre {

/// All that the numbers of a calculation depend on.
struct Inputs {
    Fields fields;
    SnowZone zone = 0;
    double return_period_factor = 1;
    /// What is to be known of the site: "sito non scelto: Zona I Alpina".
    std::vector<std::string> site_notes{};

    /// Whether the numbers are the same.
    bool operator==(const Inputs& other) const {
        return fields == other.fields && zone == other.zone &&
               return_period_factor == other.return_period_factor;
    }
};

/// A tab or page of a window: the entries of one calculation, its sketch and the labels of its results, found
/// in the window by the names of the calculation's row.
class CalculationTab : public QObject {
    Q_OBJECT

  public:
    /// @param window   has the controls, and outlives the tab; the dialogs do too
    CalculationTab(Kind kind, QWidget& window, UserDialogs& dialogs);

    [[nodiscard]] Kind kind() const { return m_description.kind; }
    [[nodiscard]] const SketchWidget& sketch_widget() const { return m_sketch; }

    /// The texts of the entries, as Fields holds them.
    [[nodiscard]] std::vector<std::string> texts() const;

    void set_texts(const std::vector<std::string>& texts);

    /// What the sketch is to say of these inputs: what is to be known of the site, where it plays a part, and
    /// each entry that is not wholly understood ("α letto come 22").
    [[nodiscard]] std::vector<std::string> notes(const Inputs& now) const;

    /// Draws the sketch for what is typed now. Where that is not what was calculated last, the ordinates
    /// follow the shape coefficients, and numbers that are shown are marked as those of other entries.
    void follow(const Inputs& now);

    /// Shows the results of a calculation in labels and sketch.
    void show_results(const Calculation& calculation, const ProgramCells& results, const Inputs& inputs);

    /// What show_results() showed last: the ground load where it plays a part, the labels in the order of the
    /// row's places, then what the calculation gave besides, under its symbol. Nothing before.
    [[nodiscard]] std::vector<ShownResult> shown_results() const;
    /// Whether they belong to other inputs than those of the last follow().
    [[nodiscard]] bool results_are_stale() const { return m_stale; }

  signals:
    /// Something else is typed in one of the fields.
    void typed();

  private:
    const Description& m_description;
    std::vector<NumberField*> m_fields;
    std::vector<ResultLabel*> m_labels;  // in the order of the row's places
    SketchWidget& m_sketch;

    struct Calculated {
        Inputs inputs;
        ProgramCells results;
        Calculation calculation;
    };
    std::optional<Calculated> m_last;
    bool m_stale = false;
    bool m_drift_length_shown = true;  // of a level change; moves with its calculations alone
};

/// The tabs of a window, one a calculation.
std::vector<std::unique_ptr<CalculationTab>> make_tabs(Window which, QWidget& window, UserDialogs& dialogs);

}  // namespace coltre
