#include "paper.h"

#include <QBuffer>
#include <QLocale>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTextOption>

#include <algorithm>
#include <functional>
#include <vector>

namespace {

constexpr double POINTS_PER_INCH = 72;
constexpr double FOOT_POINTS = 24, GAP_POINTS = 4;
constexpr int RESOLUTION = 600;
constexpr int TITLE_SIZE = 18, SECTION_SIZE = 13, FACT_SIZE = 13, TEXT_SIZE = 10, SMALL_SIZE = 9;

QString text_of(const std::string& text) {
    return QString::fromStdString(text);
}

// A strip as wide as the page that is not split between pages.
struct strip {
    double height = 0;
    std::function<void(double top)> draw;
    bool keeps_next = false; // a heading is not left alone at the bottom
    int head = -1;           // the strip repeated above it on a new page
};

class typesetter {
  public:
    typesetter(QPagedPaintDevice& device, const report_sheet& sheet)
        : device_(device), sheet_(sheet), painter_(&device) {
        painter_.setPen(Qt::black);
        point_ = device.logicalDpiY() / POINTS_PER_INCH;
        width_ = painter_.viewport().width();
        bottom_ = painter_.viewport().height() - FOOT_POINTS * point_;
    }

    void print() {
        if (!painter_.isActive())
            return;
        set_sheet();
        const std::vector<std::vector<std::size_t>> pages = paged();
        for (std::size_t page = 0; page < pages.size(); ++page) {
            if (page > 0)
                device_.newPage();
            double top = 0;
            for (const std::size_t one : pages[page]) {
                strips_[one].draw(top);
                top += strips_[one].height;
            }
            draw_foot(page + 1, pages.size());
        }
    }

  private:
    QFont font(int points, bool bold = false) const {
        QFont chosen(QStringLiteral("Liberation Sans"));
        chosen.setStyleHint(QFont::SansSerif);
        chosen.setPixelSize(static_cast<int>(points * point_));
        chosen.setBold(bold);
        return chosen;
    }

    double height_of(const QString& text, const QFont& in, double width) {
        painter_.setFont(in);
        const QRectF room(0, 0, width, 1e6);
        return std::max(painter_.boundingRect(room, text, wrapped()).height(),
                        painter_.fontMetrics().height() * 1.0);
    }
    static QTextOption wrapped() {
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        return option;
    }
    void draw_text(const QRectF& room, const QString& text, const QFont& in) {
        painter_.setFont(in);
        painter_.drawText(room, text, wrapped());
    }
    void draw_line(double y, double from, double to, double points) {
        painter_.setPen(QPen(Qt::black, points * point_));
        painter_.drawLine(QPointF(from, y), QPointF(to, y));
    }

    void add_text(const std::string& said, int points, bool bold, double above, bool keeps_next) {
        const QString text = text_of(said);
        const QFont in = font(points, bold);
        const double space = above * point_, height = height_of(text, in, width_);
        strips_.push_back({height + space + GAP_POINTS / 2 * point_,
                           [=, this](double top) {
                               draw_text({0, top + space, width_, height + 1}, text, in);
                           },
                           keeps_next, -1});
    }

    std::vector<double> places_of(const sheet_table& table) const {
        int all = 0;
        for (const int weight : table.weights)
            all += weight;
        std::vector<double> places{0};
        for (const int weight : table.weights)
            places.push_back(places.back() + width_ * weight / all);
        return places;
    }

    strip row_of(const std::vector<std::string>& cells, const std::vector<double>& places,
                 bool head) {
        const QFont in = font(SMALL_SIZE, head);
        const double gap = GAP_POINTS * point_;
        double height = 0;
        std::vector<QString> texts;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            texts.push_back(text_of(cells[i]));
            height = std::max(height, height_of(texts.back(), in, places[i + 1] - places[i] - gap));
        }
        return {height + gap,
                [=, this](double top) {
                    for (std::size_t i = 0; i < texts.size(); ++i)
                        draw_text(
                            {places[i], top + gap / 2, places[i + 1] - places[i] - gap, height + 1},
                            texts[i], in);
                    draw_line(top + height + gap, 0, width_, head ? 0.8 : 0.25);
                },
                head, -1};
    }

    void add_table(const sheet_table& table) {
        const std::vector<double> places = places_of(table);
        int head = -1;
        if (!table.heads.empty()) {
            head = static_cast<int>(strips_.size());
            strips_.push_back(row_of(table.heads, places, true));
        }
        for (const auto& cells : table.rows) {
            strips_.push_back(row_of(cells, places, false));
            strips_.back().head = head;
        }
    }

    // Lines to write on.
    void add_lines_to_fill_in(const std::vector<std::string>& labels, double above) {
        const QFont in = font(TEXT_SIZE);
        const double space = above * point_, line = 1.6 * TEXT_SIZE * point_;
        const double column = width_ / static_cast<double>(std::max<std::size_t>(labels.size(), 1));
        strips_.push_back(
            {space + line, [=, this](double top) {
                 for (std::size_t i = 0; i < labels.size(); ++i) {
                     const double left = column * static_cast<double>(i);
                     draw_text({left, top + space, column, line}, text_of(labels[i]) + u':', in);
                     draw_line(top + space + line, left, left + column - 2 * GAP_POINTS * point_,
                               0.5);
                 }
             }});
    }

    void add_facts() {
        const QFont small = font(SMALL_SIZE), large = font(FACT_SIZE, true);
        const double pad = 6 * point_, column = width_ / static_cast<double>(sheet_.facts.size());
        double value = 0;
        for (const sheet_fact& one : sheet_.facts)
            value = std::max(value, height_of(text_of(one.value), large, column - 2 * pad));
        const double label = 1.4 * SMALL_SIZE * point_;
        strips_.push_back({value + label + 4 * pad, [=, this](double top) {
                               painter_.setPen(QPen(Qt::black, 0.8 * point_));
                               for (std::size_t i = 0; i < sheet_.facts.size(); ++i) {
                                   const double left = column * static_cast<double>(i);
                                   painter_.drawRect(
                                       QRectF(left, top + pad, column, value + label + 2 * pad));
                                   const double inner = column - 2 * pad;
                                   draw_text({left + pad, top + 2 * pad, inner, label},
                                             text_of(sheet_.facts[i].label), small);
                                   draw_text({left + pad, top + 2 * pad + label, inner, value + 1},
                                             text_of(sheet_.facts[i].value), large);
                               }
                           }});
    }

    void set_sheet() {
        add_text(sheet_.title, TITLE_SIZE, true, 0, true);
        add_text((sheet_.vin.empty() ? "" : sheet_.vin + ", ") + sheet_.read_at, TEXT_SIZE, false,
                 0, true);
        if (!sheet_.to_fill_in.empty())
            add_lines_to_fill_in(sheet_.to_fill_in, 6);
        for (const std::string& one : sheet_.warnings)
            add_text(one, TEXT_SIZE, true, 6, false);
        add_facts();
        for (const sheet_section& section : sheet_.sections) {
            add_text(section.title, SECTION_SIZE, true, 12, true);
            for (const sheet_block& block : section.blocks)
                if (block.what == sheet_block::kind::table)
                    add_table(block.table);
                else
                    add_text(block.text, TEXT_SIZE, block.what == sheet_block::kind::heading, 5,
                             block.what == sheet_block::kind::heading);
        }
        add_text(sheet_.foot, SMALL_SIZE, false, 12, false);
        if (!sheet_.to_fill_in.empty())
            add_lines_to_fill_in({sheet_.signature}, 12);
    }

    // The height of a heading with everything that must stay with it.
    double height_with_next(std::size_t from) const {
        double height = strips_[from].height;
        while (strips_[from].keeps_next && from + 1 < strips_.size())
            height += strips_[++from].height;
        return height;
    }

    std::vector<std::vector<std::size_t>> paged() const {
        std::vector<std::vector<std::size_t>> pages(1);
        double top = 0;
        for (std::size_t i = 0; i < strips_.size(); ++i) {
            if (!pages.back().empty() && top + height_with_next(i) > bottom_) {
                pages.emplace_back();
                top = 0;
                if (const int head = strips_[i].head; head >= 0) {
                    pages.back().push_back(static_cast<std::size_t>(head));
                    top += strips_[static_cast<std::size_t>(head)].height;
                }
            }
            pages.back().push_back(i);
            top += strips_[i].height;
        }
        return pages;
    }

    void draw_foot(std::size_t page, std::size_t pages) {
        const QString numbers = text_of(sheet_.page).arg(page).arg(pages);
        const double line = 1.4 * SMALL_SIZE * point_, top = bottom_ + FOOT_POINTS * point_ - line;
        draw_line(top - 2 * point_, 0, width_, 0.5);
        draw_text({0, top, width_ * 0.7, line}, text_of(sheet_.vin), font(SMALL_SIZE));
        painter_.setFont(font(SMALL_SIZE));
        painter_.drawText(QRectF(width_ * 0.5, top, width_ * 0.5, line), numbers,
                          QTextOption(Qt::AlignRight));
    }

    QPagedPaintDevice& device_;
    const report_sheet& sheet_;
    QPainter painter_;
    double point_ = 1, width_ = 0, bottom_ = 0;
    std::vector<strip> strips_;
};

} // namespace

paper_size usual_paper() {
    return QLocale::system().measurementSystem() == QLocale::ImperialUSSystem ? paper_size::letter
                                                                              : paper_size::a4;
}

void print_sheet(QPagedPaintDevice& device, const report_sheet& sheet) {
    typesetter(device, sheet).print();
}

QByteArray sheet_pdf(const report_sheet& sheet, paper_size size) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter pdf(&buffer);
        pdf.setResolution(RESOLUTION);
        pdf.setTitle(text_of(sheet.title + (sheet.vin.empty() ? "" : " " + sheet.vin)));
        pdf.setCreator(QStringLiteral("Kestrom " KESTROM_VERSION));
        pdf.setPageLayout(QPageLayout(
            QPageSize(size == paper_size::a4 ? QPageSize::A4 : QPageSize::Letter),
            QPageLayout::Portrait,
            QMarginsF(PAPER_MARGIN_MM, PAPER_MARGIN_MM, PAPER_MARGIN_MM, PAPER_MARGIN_MM),
            QPageLayout::Millimeter));
        print_sheet(pdf, sheet);
    }
    return bytes;
}
