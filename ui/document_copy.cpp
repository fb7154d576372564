#include "ui/document_copy.h"

#include <QStringList>
#include <array>

#include "ui/document_look.h"

namespace coltre {

namespace {

QString plain_words(const Pieces& pieces) {
    QString text;
    for (const Piece& piece : pieces)
        text += shown_text(piece);
    return text.replace('\t', ' ');
}

const char* tag_of(Style style) {
    switch (style) {
        case Style::strong:
            return "b";
        case Style::symbol:
            return "i";
        case Style::subscript:
            return "sub";
        default:
            return nullptr;
    }
}

QString html_words(const Pieces& pieces) {
    QString html;
    for (const Piece& piece : pieces) {
        const QString words = shown_text(piece).toHtmlEscaped();
        const char* const tag = tag_of(piece.style);
        html += tag == nullptr ? words : QStringLiteral("<%1>%2</%1>").arg(tag, words);
    }
    return html;
}

/// The parts of a formula line: symbol, how it is computed, value, unit, remark.
struct Part {
    enum Index : std::size_t { symbol, computed, value, unit, remark, count };
};
using Parts = std::array<Pieces, Part::count>;

constexpr std::string_view equals = " = ";

/// What stands between the equals signs.
std::vector<Pieces> sides_of(const Pieces& formula) {
    std::vector<Pieces> sides(1);
    const auto add = [&sides](std::string text, Style style) {
        if (!text.empty()) sides.back().push_back({std::move(text), style});
    };
    for (const Piece& piece : formula) {
        std::size_t begin = 0;
        for (std::size_t end; (end = piece.text.find(equals, begin)) != std::string::npos;
             begin = end + equals.size()) {
            add(piece.text.substr(begin, end - begin), piece.style);
            sides.emplace_back();
        }
        add(piece.text.substr(begin), piece.style);
    }
    return sides;
}

/// Takes a side that is a number with its unit apart.
/// @return false if it is something else: a calculation that stopped ends with a formula
bool take_value(const Pieces& side, Parts& parts) {
    const std::string text = plain_text(side);
    const std::size_t degree = text.find("°");
    const std::size_t blank = std::min({text.find(' '), degree, text.size()});
    if (text.find_first_of("0123456789") >= blank) return false;
    if (text.find_first_not_of("0123456789,e+-−") < blank) return false;
    if (text.find_first_of("0123456789", blank) != std::string::npos) return false;
    parts[Part::value] = {{text.substr(0, blank), side.front().style}};
    if (blank < text.size())
        parts[Part::unit] = {{text.substr(blank + (blank == degree ? 0 : 1)), Style::plain}};
    return true;
}

Parts parts_of(const FormulaLine& line) {
    Parts parts;
    parts[Part::remark] = line.remark;
    std::vector<Pieces> sides = sides_of(line.formula);
    if (sides.size() > 1 && take_value(sides.back(), parts)) sides.pop_back();
    parts[Part::symbol] = sides.front();
    Pieces& rest = parts[Part::computed];
    for (std::size_t i = 1; i < sides.size(); ++i) {
        if (i > 1) rest.push_back({std::string(equals), Style::plain});
        rest.insert(rest.end(), sides[i].begin(), sides[i].end());
    }
    return parts;
}

class TextCopy {
  public:
    QString text;

    void operator()(const Heading& heading) {
        if (!text.isEmpty()) text += '\n';
        line(QString::fromStdString(heading.text));
    }
    void operator()(const Paragraph& paragraph) { line(plain_words(paragraph.pieces)); }
    void operator()(const FormulaLine& formula) {
        line(plain_words(formula.formula) +
             (formula.remark.empty() ? "" : "   [" + plain_words(formula.remark) + "]"));
    }
    void operator()(const Table& table) {
        if (!table.header.empty()) row(table.header);
        for (const auto& cells : table.rows)
            row(cells);
    }
    void operator()(const Figure& figure) {
        if (!figure.caption.empty()) line(QString::fromStdString(figure.caption));
    }
    void operator()(const CodeBlock& code) { line(QString::fromStdString(code.text)); }

  private:
    void line(const QString& words) { text += words + '\n'; }
    void row(const std::vector<Pieces>& cells) {
        QStringList words;
        for (const Pieces& cell : cells)
            words += plain_words(cell);
        line(words.join('\t'));
    }
};

class TableCopy {
  public:
    void operator()(const Heading& heading) { row({{{heading.text, Style::strong}}}); }
    void operator()(const Paragraph& paragraph) { row({paragraph.pieces}); }
    void operator()(const FormulaLine& line) {
        const Parts parts = parts_of(line);
        row({parts.begin(), parts.end()});
    }
    void operator()(const Table& table) {
        if (!table.header.empty()) row(table.header);
        for (const auto& cells : table.rows)
            row(cells);
    }
    void operator()(const Figure& figure) {
        if (!figure.caption.empty()) row({{{figure.caption, Style::plain}}});
    }
    void operator()(const CodeBlock& code) { row({{{code.text, Style::code}}}); }

    CopiedTable take() { return {m_text, m_html + "</table>"}; }

  private:
    /// A row of one cell reaches over all columns.
    void row(const std::vector<Pieces>& cells) {
        QStringList words;
        m_html += "<tr>";
        for (const Pieces& cell : cells) {
            words += plain_words(cell);
            m_html +=
                (cells.size() == 1 ? QStringLiteral("<td colspan=\"%1\">").arg(std::size(Parts{})) : "<td>") +
                html_words(cell) + "</td>";
        }
        m_html += "</tr>\n";
        m_text += words.join('\t') + '\n';
    }

    QString m_text;
    QString m_html =
        QStringLiteral(R"(<meta charset="utf-8"><table border="1" cellspacing="0" cellpadding="3">)");
};

}  // namespace

QString copied_text(const Document& document) {
    TextCopy copy;
    for (const Block& block : document.blocks)
        std::visit(copy, block);
    return copy.text;
}

CopiedTable copied_table(const Document& document) {
    TableCopy copy;
    for (const Block& block : document.blocks)
        std::visit(copy, block);
    return copy.take();
}

}  // namespace coltre
