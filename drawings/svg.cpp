#include "drawings/svg.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <utility>

#include "drawings/look.h"
#include "text/characters.h"

namespace coltre {

namespace {

/// Builds the picture element by element.
class SvgWriter {
  public:
    SvgWriter(const Drawing& drawing, const SvgOptions& options) : m_drawing(drawing), m_options(options) {}

    std::string write() {
        open();
        const std::vector<Shape>& shapes = m_drawing.shapes;
        for (auto first = shapes.begin(); first != shapes.end();) {
            const auto last =
                std::find_if(first, shapes.end(), [&](const Shape& it) { return it.role != first->role; });
            write_shapes({first, last});
            first = last;
        }
        for (const Arrow& arrow : m_drawing.arrows)
            write_arrow(arrow);
        for (const Text& text : m_drawing.texts)
            write_text(text);
        for (const LabelSlot& slot : m_drawing.label_slots)
            write_slot(slot);
        m_svg += "</svg>\n";
        return std::move(m_svg);
    }

  private:
    void open() {
        constexpr double millimetres_a_twip = 25.4 / 1440;
        const Rect& page = m_drawing.page;
        m_svg += R"(<svg xmlns="http://www.w3.org/2000/svg" role="img")";
        attribute("viewBox", number(page.x) + " " + number(page.y) + " " + number(page.width) + " " +
                                 number(page.height));
        attribute("width", number(page.width * millimetres_a_twip) + "mm");
        attribute("height", number(page.height * millimetres_a_twip) + "mm");
        attribute("font-family", "sans-serif");
        attribute("font-size", number(text_height));
        m_svg += R"( fill="none" stroke-linejoin="round">)";
        if (!m_options.title.empty()) m_svg += "<title>" + escaped(m_options.title) + "</title>";
        m_svg += "\n<rect";
        attribute("x", number(page.x));
        attribute("y", number(page.y));
        attribute("width", number(page.width));
        attribute("height", number(page.height));
        attribute("fill", hex(black_on_white.paper));
        m_svg += "/>\n";
    }

    /// Shapes of one role, as they follow each other.
    void write_shapes(std::span<const Shape> shapes) {
        const Role role = shapes.front().role;
        if (role == Role::break_mark) {
            for (const Shape& zigzag : shapes) {
                const std::array gap{zigzag.points[1], zigzag.points[zigzag.points.size() - 2]};
                write_line(path(gap), black_on_white.paper, break_gap * line_width(role));
                write_line(path(zigzag.points), colour(role, black_on_white), line_width(role));
            }
            return;
        }
        std::string data;
        for (const Shape& shape : shapes)
            data += path(shape.points) + (shape.closed ? "Z" : "");
        if (is_filled(role)) {
            write_area(data, role);
        } else {
            write_line(data, colour(role, black_on_white), line_width(role), role == Role::axis);
        }
    }

    void write_arrow(const Arrow& arrow) {
        const auto [tip, left, right] = arrow_head(arrow);
        const std::array shaft{arrow.from, Point{(left.x + right.x) / 2, (left.y + right.y) / 2}};
        write_line(path(shaft), colour(arrow.role, black_on_white), line_width(arrow.role));
        write_area(path(std::array{tip, left, right}) + "Z", arrow.role);
    }

    void write_line(const std::string& data, const Colour& stroke, double width, bool dashed = false) {
        m_svg += "<path";
        attribute("stroke", hex(stroke));
        attribute("stroke-width", number(width));
        if (dashed) {
            std::string lengths;
            for (const double length : axis_dashes)
                lengths += (lengths.empty() ? "" : " ") + number(length * width);
            attribute("stroke-dasharray", lengths);
        }
        attribute("d", data);
        m_svg += "/>\n";
    }

    void write_area(const std::string& data, Role role) {
        m_svg += "<path";
        attribute("fill", hex(colour(role, black_on_white)));
        attribute("d", data);
        m_svg += "/>\n";
    }

    void write_text(const Text& text) {
        constexpr double usual = 0.9;  // width of a text, of the room that a drawing leaves it
        const double part = std::min(1.0, text.box.width / std::max(usual * text_width(text.text), 1.0));
        open_text(text.box, text.align, colour(text.role, black_on_white), part * text_height);
        m_svg += escaped(text.text) + "</text>\n";
    }

    void write_slot(const LabelSlot& slot) {
        const auto label = m_options.labels.find(slot.name);
        // Without a number the symbol and the unit beside it say nothing.
        if (!slot.visible || label == m_options.labels.end()) return;
        const std::string shown{trim_blanks(label->second)};
        if (shown.empty()) return;
        open_text(slot.area, slot.align, symbol_colour(m_drawing, black_on_white), text_height);
        if (!slot.before.empty()) m_svg += escaped(slot.before) + " ";
        m_svg += "<tspan";
        attribute("fill", hex(number_colour(m_drawing, black_on_white)));
        m_svg += ">" + escaped(shown) + "</tspan>";
        if (!slot.after.empty()) m_svg += " " + escaped(slot.after);
        m_svg += "</text>\n";
    }

    void open_text(const Rect& box, Align align, const Colour& fill, double size) {
        constexpr double baseline = 0.35;  // below the middle of the letters
        m_svg += "<text";
        const double x = align == Align::left    ? box.x
                         : align == Align::right ? box.right()
                                                 : box.x + box.width / 2;
        attribute("x", number(x));
        attribute("y", number(box.y + box.height / 2 + baseline * size));
        if (align != Align::left) attribute("text-anchor", align == Align::right ? "end" : "middle");
        if (size < text_height) attribute("font-size", number(size));
        attribute("fill", hex(fill));
        m_svg += ">";
    }

    void attribute(const char* name, const std::string& value) {
        ((((m_svg += " ") += name) += "=\"") += value) += '"';
    }

    static std::string path(std::span<const Point> points) {
        std::string data;
        for (const Point p : points)
            data += (data.empty() ? "M" : "L") + number(p.x) + " " + number(p.y);
        return data;
    }

    /// In tenths, which are finer than any printer.
    static std::string number(double value) {
        const long tenths = std::lround(value * 10);
        std::string text = std::to_string(std::labs(tenths) / 10);
        if (tenths % 10 != 0) (text += '.') += static_cast<char>('0' + std::labs(tenths) % 10);
        return tenths < 0 ? "-" + text : text;
    }

    static std::string hex(const Colour& colour) {
        constexpr char digits[] = "0123456789abcdef";
        std::string text = "#";
        for (const double part : {colour.red, colour.green, colour.blue}) {
            const auto byte = static_cast<unsigned>(std::lround(part * 255));
            (text += digits[byte / 16]) += digits[byte % 16];
        }
        return text;
    }

    static std::string escaped(const std::string& text) {
        std::string safe;
        for (const char c : text) {
            switch (c) {
                case '&':
                    safe += "&amp;";
                    break;
                case '<':
                    safe += "&lt;";
                    break;
                case '>':
                    safe += "&gt;";
                    break;
                default:
                    safe += static_cast<unsigned char>(c) < 0x20 ? ' ' : c;  // no others stand in XML
            }
        }
        return safe;
    }

    const Drawing& m_drawing;
    const SvgOptions& m_options;
    std::string m_svg;
};

}  // namespace

std::string to_svg(const Drawing& drawing, const SvgOptions& options) {
    return SvgWriter(drawing, options).write();
}

}  // namespace coltre
