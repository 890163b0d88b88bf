#include <gtest/gtest.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <map>
#include <string>

#include "SampleBooks.h"
#include "report/qt/ReportPrinting.h"
#include "report/qt/SheetRenderer.h"

namespace gustline::report {
namespace {

QString PicturePath(const char* name) {
  QDir().mkpath(QStringLiteral(GUSTLINE_PICTURES_DIR));
  return QStringLiteral(GUSTLINE_PICTURES_DIR "/") + QString::fromLatin1(name);
}

// The stream of object `number` of a PDF, inflated when it is compressed.
QByteArray PdfStream(const QByteArray& pdf, int number) {
  const qsizetype object = pdf.indexOf("\n" + QByteArray::number(number) + " 0 obj");
  const qsizetype at = pdf.indexOf("stream\n", object);
  const qsizetype end = pdf.indexOf("endstream", at);
  const QByteArray body = pdf.mid(at + 7, end - at - 7);
  if (!pdf.mid(object, at - object).contains("FlateDecode")) return body;
  return qUncompress(QByteArray("\x04\0\0\0", 4) + body);  // a size hint of 64 MB
}

std::vector<uint> Hex4(const QString& hex) {
  std::vector<uint> codes;
  for (qsizetype i = 0; i + 4 <= hex.size(); i += 4)
    codes.push_back(hex.mid(i, 4).toUInt(nullptr, 16));
  return codes;
}

// The text that the pages draw: each glyph through the ToUnicode map of its font (Qt names
// a font resource /F<n> after its object n).
QString PdfText(const QByteArray& pdf) {
  std::map<int, std::map<uint, QChar>> fonts;
  const QRegularExpression font(
      QStringLiteral("\\n(\\d+) 0 obj\\s*<< /Type /Font[^>]*/ToUnicode (\\d+) 0 R"));
  const QRegularExpression range(QStringLiteral("<([0-9A-F]{4})> <([0-9A-F]{4})> \\[([^\\]]*)\\]"));
  for (const auto& f : font.globalMatch(QString::fromLatin1(pdf))) {
    auto& glyphs = fonts[f.captured(1).toInt()];
    const QString cmap = QString::fromLatin1(PdfStream(pdf, f.captured(2).toInt()));
    for (const auto& r : range.globalMatch(cmap)) {
      const std::vector<uint> codes =
          Hex4(r.captured(3).remove(QRegularExpression(QStringLiteral("[<> ]"))));
      for (std::size_t i = 0; i < codes.size(); ++i)
        glyphs[r.captured(1).toUInt(nullptr, 16) + static_cast<uint>(i)] = QChar(codes[i]);
    }
  }
  QString drawn;
  const QRegularExpression page(QStringLiteral("/Contents (\\d+) 0 R"));
  const QRegularExpression operation(QStringLiteral("/F(\\d+) [0-9.]+ Tf|<([0-9A-F]+)> Tj"));
  for (const auto& p : page.globalMatch(QString::fromLatin1(pdf))) {
    int current = 0;
    const QString content = QString::fromLatin1(PdfStream(pdf, p.captured(1).toInt()));
    for (const auto& op : operation.globalMatch(content)) {
      if (!op.captured(1).isEmpty()) {
        current = op.captured(1).toInt();
        drawn += u' ';
        continue;
      }
      for (const uint glyph : Hex4(op.captured(2))) drawn += fonts[current][glyph];
    }
  }
  return drawn;
}

TEST(ReportOutput, PdfHoldsTheReportAsTextInEmbeddedFontsOnePagePerSheet) {
  auto book = testing::VelocityPressureBook();
  book->AddSheet("Page 2");
  book->SetActiveSheet(2);
  book->GetSheet(2).Print() = book->GetSheet(1).Print();
  testing::Put(*book, 1, 1, "Gust Effect Factor");
  book->SetColumnWidth(2, 2, 4);
  testing::Put(*book, 1, 2, "123456789");  // too wide for four characters
  book->SetColumnWidth(3, 3, 30);
  // A date after 9999 fills its cell however wide.
  testing::Put(*book, 1, 3, "1E+15", testing::Styled(10, false, wb::HAlign::General, "m/d/yyyy"));
  book->SetActiveSheet(1);
  const QString path = PicturePath("velocity-pressure.pdf");
  WriteReportPdf(*book, path.toStdString());

  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray pdf = file.readAll();
  EXPECT_TRUE(pdf.startsWith("%PDF-"));
  EXPECT_TRUE(pdf.contains("/FontFile2")) << "fonts are embedded";
  EXPECT_FALSE(pdf.contains("/Subtype /Image")) << "no page is a picture";
  EXPECT_EQ(pdf.count("/Type /Page\n") + pdf.count("/Type /Page\r") + pdf.count("/Type /Page "), 2);
  const QString text = PdfText(pdf).simplified().remove(u' ');
  for (const char* expected : {"VelocityPressure,qz", "Exposurecoefficient", "100.0", "1.15",
                               "0.849", "21.25", "psf", "Page1", "GustEffectFactor", "Page2"})
    EXPECT_TRUE(text.contains(QString::fromLatin1(expected)))
        << expected << " in " << text.toStdString();
  EXPECT_TRUE(text.contains(QStringLiteral("##")));
  EXPECT_TRUE(text.contains(QString(20, u'#'))) << text.toStdString();
  EXPECT_FALSE(text.contains(QStringLiteral("1234")));
}

TEST(ReportOutput, PngShowsThePageAtItsResolution) {
  auto book = testing::VelocityPressureBook();
  const QString path = PicturePath("velocity-pressure.png");
  WriteSheetPng(*book, 1, path.toStdString(), 96);
  QImage image(path);
  ASSERT_FALSE(image.isNull());
  EXPECT_EQ(image.size(), QSize(816, 1056));

  // The shaded result cell D9, where the fit to one page leaves the scale at 1: the margins
  // are 0.5 in left and 0.75 in top, columns A to C are 3, 30 and 12 characters wide, rows 1
  // (14 pt) and 2 to 8 stand above it.
  const double x = 36 + (3 + 30 + 12 + 6) * 5.25;
  const double y = 54 + 18 + 7 * 12.75 + 2;
  EXPECT_EQ(image.pixelColor(int(x * 96 / 72), int(y * 96 / 72)), QColor(0xDD, 0xEE, 0xFF));
  // Ink of the title in row 1.
  bool ink = false;
  for (int px = int(36 * 96 / 72); px < int(300 * 96 / 72) && !ink; ++px)
    ink = image.pixelColor(px, int((54 + 10) * 96 / 72)).lightness() < 100;
  EXPECT_TRUE(ink);
  // The long text of B11 runs on over the empty C11 and D11.
  ink = false;
  const double d11 = 36 + (3 + 30 + 12) * 5.25;
  for (int px = int(d11 * 96 / 72); px < int((d11 + 40) * 96 / 72) && !ink; ++px)
    for (int py = int((54 + 18 + 9 * 12.75 + 2) * 96 / 72);
         py < int((54 + 18 + 10 * 12.75) * 96 / 72); ++py)
      ink = ink || image.pixelColor(px, py).lightness() < 100;
  EXPECT_TRUE(ink);

  WriteSheetPng(*book, 1, PicturePath("velocity-pressure-150dpi.png").toStdString(), 150);
}

}  // namespace
}  // namespace gustline::report
