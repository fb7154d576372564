#pragma once

#include "engine/calculation.h"

namespace coltre {

/// Passes everything on to two observers, the first one first.
class BothObservers : public CalculationObserver {
  public:
    BothObservers(CalculationObserver& first, CalculationObserver& second)
        : m_first(first), m_second(second) {}
    void on_cell(const ResultCell& cell, double value) override {
        m_first.on_cell(cell, value);
        m_second.on_cell(cell, value);
    }
    void on_coefficient(std::string_view label, double mu) override {
        m_first.on_coefficient(label, mu);
        m_second.on_coefficient(label, mu);
    }
    void on_roof(const Roof& roof) override {
        m_first.on_roof(roof);
        m_second.on_roof(roof);
    }
    void on_load_case(const LoadCase& load_case) override {
        m_first.on_load_case(load_case);
        m_second.on_load_case(load_case);
    }
    void on_special_case(const SpecialCaseEntries& entries) override {
        m_first.on_special_case(entries);
        m_second.on_special_case(entries);
    }

  private:
    CalculationObserver& m_first;
    CalculationObserver& m_second;
};

}  // namespace coltre
