#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "document/document.h"
#include "drawings/drawing.h"

namespace coltre {

/// Puts a document together block by block, its sections and figures numbered as they come.
class Composer {
  public:
    /// @param first_section  number of the first section
    Composer(std::string title, int first_section) : m_section(first_section) {
        m_document.title = m_document.page_header = std::move(title);
    }

    void heading(int level, std::string text) {
        m_document.blocks.emplace_back(Heading{level, std::move(text)});
    }
    /// The heading of a section.
    void section(std::string_view text) {
        heading(2, std::to_string(m_section++) + "  " + std::string(text));
    }
    void paragraph(Pieces pieces) { m_document.blocks.emplace_back(Paragraph{std::move(pieces)}); }
    void paragraph(std::string_view text) { paragraph(plain(text)); }
    void note(std::string text) { paragraph(Pieces{{std::move(text), Style::note}}); }
    void formula(FormulaLine line) { m_document.blocks.emplace_back(std::move(line)); }
    /// A table without rows is none.
    void table(Table table) {
        if (!table.rows.empty()) m_document.blocks.emplace_back(std::move(table));
    }
    void code(std::string text) { m_document.blocks.emplace_back(CodeBlock{std::move(text)}); }
    void figure(Drawing drawing, std::map<std::string, std::string> labels, std::string_view caption) {
        m_document.blocks.emplace_back(
            Figure{std::move(drawing), std::move(labels),
                   "Fig. " + std::to_string(++m_figure) + " — " + std::string(caption)});
    }

    Document& document() { return m_document; }

  private:
    Document m_document;
    int m_section;
    int m_figure = 0;
};

}  // namespace coltre
