#pragma once

#include <QDialog>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ui/place_model.h"
#include "ui/user_dialogs.h"

namespace coltre {

namespace Ui {
class PlaceFinder;
}

/// The window "Trova comune": one field over all municipalities. It is not modal; it reads altitudini.txt
/// whenever it comes to the front.
class PlaceFinder : public QDialog {
    Q_OBJECT

  public:
    /// @param ProgramDirectory  of altitudini.txt; the dialogs outlive the window
    PlaceFinder(std::string ProgramDirectory, UserDialogs& dialogs, QWidget* parent);
    ~PlaceFinder() override;

    /// The ground loads are those of this calculation's coefficients.
    void set_calculation(const std::optional<LoadInputs>& calculation) {
        m_model->set_calculation(calculation);
    }

    [[nodiscard]] std::vector<const Place*> marked_places() const { return m_model->marked_places(); }
    void clear_marks() { m_model->clear_marks(); }

  signals:
    /// A place was chosen whose province can be read.
    void chosen(const std::string& province, const std::string& municipality);
    void marks_changed();
    void comparison_wanted();

  protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    /// The arrow down leads from the field to the hits; the space bar marks one there.
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void read_places();
    void search();
    void show_hits();
    void choose();
    void mark();
    void show_marks();
    [[nodiscard]] int current_row() const;

    std::string m_directory;
    UserDialogs& m_dialogs;
    std::unique_ptr<Ui::PlaceFinder> m_ui;
    PlaceModel* m_model;
};

}  // namespace coltre
