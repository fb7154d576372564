#include "ui/results_copy.h"

#include "platform/environment.h"
#include "text/number_text.h"
#include "ui/qt_text.h"

namespace coltre {

std::unique_ptr<QMimeData> copied(const std::vector<ShownResult>& results, const QString& remark) {
    QString text;
    QString table = "<html><head><meta charset=\"utf-8\"></head><body><table>\n";
    if (!remark.isEmpty()) {
        text = remark + '\n';
        table += "<tr><td colspan=\"3\">" + remark.toHtmlEscaped() + "</td></tr>\n";
    }
    for (const ShownResult& it : results) {
        const QString unit = qt(it.quantity.unit);
        QString number =
            QString::fromStdString(display_number_text(round_half_even(it.value, it.quantity.decimals)))
                .trimmed();
        number.replace('.', user_decimal_separator());
        text += it.meaning + '\t' + number + '\t' + unit + '\n';
        table += "<tr><td>" + it.meaning.toHtmlEscaped() + "</td><td align=\"right\">" + number +
                 "</td><td>" + unit + "</td></tr>\n";
    }
    auto data = std::make_unique<QMimeData>();
    data->setText(text);
    data->setHtml(table + "</table></body></html>");
    return data;
}

}  // namespace coltre
