#include "document/html.h"

#include <string_view>

#include "drawings/svg.h"

namespace coltre {

namespace {

constexpr std::string_view style_sheet = R"(
@page { size: A4; margin: 20mm 18mm; }
body { font: 10.5pt/1.4 "Liberation Sans", Arial, Helvetica, sans-serif; color: #000; background: #fff;
       max-width: 174mm; margin: 8mm auto; padding: 0 4mm; }
h1 { font-size: 16pt; margin: 0 0 4mm; }
h2 { font-size: 12.5pt; margin: 7mm 0 2mm; border-bottom: 0.3mm solid #888; }
h3 { font-size: 11pt; margin: 4mm 0 1mm; }
h1, h2, h3 { break-after: avoid; }
p:has(+ table), p:has(+ pre) { break-after: avoid; }
p { margin: 1.5mm 0; }
i { font-family: "Liberation Serif", "Times New Roman", serif; font-size: 1.05em; }
sub { font-size: 0.72em; line-height: 0; }
em { color: #8a3c00; font-style: normal; }
.note { color: #555; font-size: 0.9em; }
.formula { display: flex; justify-content: space-between; gap: 6mm; margin: 1mm 0 1mm 4mm; break-inside: avoid; }
.formula .remark { text-align: right; color: #555; font-size: 0.9em; }
.blank { display: inline-block; min-width: 45mm; border-bottom: 0.2mm dotted #555; }
table { border-collapse: collapse; margin: 2mm 0; }
th, td { border: 0.2mm solid #aaa; padding: 0.8mm 2.2mm; text-align: left; vertical-align: top; }
th { background: #eee; }
td.right, th.right { text-align: right; }
tr, figure { break-inside: avoid; }
figure { margin: 3mm 0; text-align: center; }
figure svg { width: 130mm; max-width: 100%; height: auto; }
figcaption { font-size: 0.9em; color: #333; }
pre { white-space: pre-wrap; overflow-wrap: anywhere; font: 9pt "Liberation Mono", monospace; border: 0.2mm solid #aaa;
      padding: 2mm; }
code { font-family: "Liberation Mono", monospace; }
header, footer { color: #555; font-size: 0.85em; display: flex; justify-content: space-between; }
header { margin-bottom: 5mm; border-bottom: 0.2mm solid #aaa; }
footer { margin-top: 8mm; border-top: 0.2mm solid #aaa; }
)";

void append_escaped(std::string& html, std::string_view text) {
    for (const char c : text) {
        switch (c) {
            case '&':
                html += "&amp;";
                break;
            case '<':
                html += "&lt;";
                break;
            case '>':
                html += "&gt;";
                break;
            case '"':
                html += "&quot;";
                break;
            default:
                html += c;
        }
    }
}

/// How a style begins and ends in HTML.
struct Tags {
    std::string_view begin, end;
};
Tags tags_of(Style style) {
    switch (style) {
        case Style::plain:
            return {};
        case Style::strong:
            return {"<b>", "</b>"};
        case Style::emphasis:
            return {"<em>", "</em>"};
        case Style::symbol:
            return {"<i>", "</i>"};
        case Style::subscript:
            return {"<sub>", "</sub>"};
        case Style::code:
            return {"<code>", "</code>"};
        case Style::note:
            return {R"(<span class="note">)", "</span>"};
        case Style::blank:
            return {R"(<span class="blank">)", "&nbsp;</span>"};
    }
    return {};
}

void append_element(std::string& html, std::string_view name, std::string_view text) {
    html.append("<").append(name).append(">");
    append_escaped(html, text);
    html.append("</").append(name).append(">\n");
}

class HtmlWriter {
  public:
    explicit HtmlWriter(std::string& html) : m_html(html) {}

    void operator()(const Heading& heading) {
        append_element(m_html, "h" + std::to_string(heading.level), heading.text);
    }
    void operator()(const Paragraph& paragraph) {
        m_html += "<p>";
        pieces(paragraph.pieces);
        m_html += "</p>\n";
    }
    void operator()(const FormulaLine& line) {
        m_html += R"(<div class="formula"><span>)";
        pieces(line.formula);
        // The blank is for whatever reads the text alone.
        m_html += R"(</span> <span class="remark">)";
        pieces(line.remark);
        m_html += "</span></div>\n";
    }
    void operator()(const Table& table) {
        m_html += "<table>\n";
        if (!table.header.empty()) {
            m_html += "<thead>";
            row(table, table.header, "th");
            m_html += "</thead>\n";
        }
        m_html += "<tbody>\n";
        for (const auto& cells : table.rows)
            row(table, cells, "td");
        m_html += "</tbody></table>\n";
    }
    void operator()(const Figure& figure) {
        m_html += "<figure>\n" + to_svg(figure.drawing, {figure.labels, figure.caption}) + "\n";
        append_element(m_html, "figcaption", figure.caption);
        m_html += "</figure>\n";
    }
    void operator()(const CodeBlock& code) { append_element(m_html, "pre", code.text); }

  private:
    void pieces(const Pieces& pieces) {
        for (const Piece& piece : pieces) {
            const Tags tags = tags_of(piece.style);
            m_html += tags.begin;
            append_escaped(m_html, piece.text);
            m_html += tags.end;
        }
    }
    void row(const Table& table, const std::vector<Pieces>& cells, std::string_view element) {
        m_html += "<tr>";
        for (std::size_t i = 0; i < cells.size(); ++i) {
            const bool right = table.columns[i] == ColumnAlign::right;
            m_html.append("<").append(element).append(right ? R"( class="right">)" : ">");
            pieces(cells[i]);
            m_html.append("</").append(element).append(">");
        }
        m_html += "</tr>\n";
    }

    std::string& m_html;
};

}  // namespace

std::string to_html(const Document& document) {
    std::string html = "<!DOCTYPE html>\n<html lang=\"it\">\n<head>\n<meta charset=\"utf-8\">\n";
    append_element(html, "title", document.title);
    html.append("<style>").append(style_sheet).append("</style>\n</head>\n<body>\n<header><span>");
    append_escaped(html, document.page_header);
    html += "</span></header>\n";
    HtmlWriter write(html);
    for (const Block& block : document.blocks)
        std::visit(write, block);
    html += "<footer><span>";
    append_escaped(html, document.page_footer);
    html += "</span></footer>\n</body>\n</html>\n";
    return html;
}

}  // namespace coltre
