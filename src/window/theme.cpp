// Palette and style sheet of the program.
#include "window/theme.h"

#include <QApplication>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QTextDocument>
#include <cmath>

namespace vorlund::theme {

namespace {

constexpr auto kStyleSheet = R"(
  QListView, QTreeView, QTableView, QPlainTextEdit, QTextBrowser, QLineEdit {
    background: #121921; color: #f2f4f6; border: 1px solid #455566; border-radius: 4px;
    selection-background-color: #3f6285; selection-color: #ffffff; }
  QListView:focus, QTableView:focus, QPlainTextEdit:focus, QTextBrowser:focus, QLineEdit:focus { border-color: #ffc94d; }
  QListView::item { padding: 3px 6px; }
  QLineEdit { padding: 4px 6px; }
  QTableView { gridline-color: #2a3643; alternate-background-color: #172029; }
  QHeaderView::section { background: #26323f; color: #aebac6; border: none; border-right: 1px solid #455566;
    padding: 5px 7px; }
  QToolTip { background: #26323f; color: #f2f4f6; border: 1px solid #455566; padding: 3px; }
  QProgressBar { background: #121921; border: 1px solid #455566; border-radius: 4px; height: 12px; }
  QProgressBar::chunk { background: #ffc94d; border-radius: 3px; }
  QCheckBox, QRadioButton { color: #f2f4f6; spacing: 7px; }
  QScrollBar:vertical { background: transparent; width: 12px; margin: 0; }
  QScrollBar:horizontal { background: transparent; height: 12px; margin: 0; }
  QScrollBar::handle { background: #55677a; border-radius: 5px; margin: 1px; }
  QScrollBar::handle:vertical { min-height: 28px; }
  QScrollBar::handle:horizontal { min-width: 28px; }
  QScrollBar::handle:hover { background: #7189a1; }
  QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
  QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
)";

/// Some desktops open what is clicked once; here a click selects and a double click opens.
class ProgramStyle : public QProxyStyle {
 public:
  ProgramStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* result) const override {
    if (hint == SH_ItemView_ActivateItemOnSingleClick) return 0;
    return QProxyStyle::styleHint(hint, option, widget, result);
  }
};

}  // namespace

void apply_to(QApplication& application) {
  application.setStyle(new ProgramStyle);
  // Where the system's own font is not there, as often in Wine, the next best would have serifs.
  QFont font = QApplication::font();
  font.setFamilies(font.families() + QStringList{"Segoe UI", "Tahoma", "DejaVu Sans", "Liberation Sans"});
  QApplication::setFont(font);
  QApplication::setFont(font, "QTipLabel");
  QPalette palette;
  palette.setColor(QPalette::Window, kPanel);
  palette.setColor(QPalette::WindowText, kText);
  palette.setColor(QPalette::Base, kField);
  palette.setColor(QPalette::AlternateBase, kPanel);
  palette.setColor(QPalette::Text, kText);
  palette.setColor(QPalette::Button, kButton);
  palette.setColor(QPalette::ButtonText, kText);
  palette.setColor(QPalette::BrightText, kAccent);
  palette.setColor(QPalette::Highlight, kButtonHover);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, kPanelTitle);
  palette.setColor(QPalette::ToolTipText, kText);
  palette.setColor(QPalette::PlaceholderText, kQuietText);
  application.setPalette(palette);
  application.setStyleSheet(kStyleSheet);
}

void keep_font(QWidget& widget) {
  QFont font = QApplication::font();
  font.setFamilies(font.families());
  font.setPointSizeF(font.pointSizeF());
  widget.setFont(font);
}

QString literal(const QString& text) {
  return Qt::mightBeRichText(text) ? text.toHtmlEscaped() : text;
}

int pixels(int twips) {
  return static_cast<int>(std::lround(static_cast<double>(twips) / kTwipsPerPixel));
}

int twips(double pixels) {
  return static_cast<int>(std::lround(pixels * kTwipsPerPixel));
}

QRect pixels(const Place& place) {
  return {pixels(place.left), pixels(place.top), pixels(place.width), pixels(place.height)};
}

void draw_empty_words(QWidget& viewport, const QString& words) {
  if (words.isEmpty()) return;
  constexpr int kMargin = 12;
  QPainter painter(&viewport);
  painter.setPen(kQuietText);
  painter.drawText(viewport.rect().adjusted(kMargin, kMargin, -kMargin, -kMargin),
                   Qt::AlignCenter | Qt::TextWordWrap, words);
}

void draw_plate(QPainter& painter, const QRect& area, const QColor& fill, const QColor& edge) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(fill);
  painter.setPen(edge.alpha() == 0 ? QPen(Qt::NoPen) : QPen(edge, 1));
  painter.drawRoundedRect(QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
}

}  // namespace vorlund::theme
