#pragma once

#include <QByteArray>
#include <QList>
#include <QRectF>
#include <QString>

#include <cmath>
#include <memory>

#include <poppler-document.h>
#include <poppler-page.h>

namespace Tavelo
{

inline QString fromPoppler(const poppler::ustring &text)
{
    const std::vector<char> utf8 = text.to_utf8();
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

/// A PDF as a reader sees it. Pages count from 0; lengths are points, from the page's upper left corner.
class ReadPdf
{
public:
    explicit ReadPdf(const QByteArray &bytes)
        : m_bytes(bytes), document(poppler::document::load_from_raw_data(m_bytes.constData(), int(m_bytes.size())))
    {
        for (int number = 0; document && number < document->pages(); ++number)
            pages.emplace_back(document->create_page(number));
    }

    /// Words of one size side by side, with a blank between.
    struct Run {
        QString text;
        QRectF box; ///< From the first letter's origin to the end of the last, a line high.
        double size = 0;
        QString font;
    };

    QList<Run> runs(size_t page) const
    {
        QList<Run> runs;
        for (const poppler::text_box &each : pages.at(page)->text_list(poppler::page::text_list_include_font)) {
            const poppler::rectf at = each.bbox();
            const QRectF box(at.x(), at.y(), at.width(), at.height());
            const double gap = runs.isEmpty() ? 0 : box.left() - runs.last().box.right();
            if (!runs.isEmpty() && runs.last().size == each.get_font_size() && gap > -0.5 &&
                gap < each.get_font_size() / 2 && std::abs(runs.last().box.top() - box.top()) < 0.01) {
                runs.last().text += u' ' + fromPoppler(each.text());
                runs.last().box |= box;
            } else {
                runs << Run{fromPoppler(each.text()), box, each.get_font_size(),
                            QString::fromStdString(each.get_font_name())};
            }
        }
        return runs;
    }

    /// The run that begins so with its top at `y`; an empty one where there is none.
    Run run(size_t page, const QString &beginning, double y) const
    {
        for (const Run &run : runs(page))
            if (run.text.startsWith(beginning) && std::abs(run.box.top() - y) < 0.3)
                return run;
        return {};
    }

private:
    QByteArray m_bytes;

public:
    const std::unique_ptr<poppler::document> document; ///< Null for bytes that are no PDF.
    std::vector<std::unique_ptr<poppler::page>> pages;
};

} // namespace Tavelo
