// gustline-manual MARKDOWN PDF: sets the user's manual, written in Markdown, as a PDF of
// numbered Letter pages.
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QTextDocument>
#include <cstdio>

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argc, argv);
  if (argc != 3) {
    std::fputs("usage: gustline-manual MARKDOWN PDF\n", stderr);
    return 2;
  }
  QFile source(QString::fromLocal8Bit(argv[1]));
  if (!source.open(QIODevice::ReadOnly)) {
    std::fprintf(stderr, "gustline-manual: cannot read %s\n", argv[1]);
    return 1;
  }
  QTextDocument document;
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPointSizeF(10);
  document.setDefaultFont(font);
  QString markdown = QString::fromUtf8(source.readAll());
  // Pictures, named relative to the manual's own folder, go into the text as data: printing
  // sets a copy of the document, which would not keep resources added to this one.
  const QString folder = QFileInfo(source).absolutePath() + QLatin1Char('/');
  static const QRegularExpression kPicture(QStringLiteral(R"((!\[[^\]]*\]\()([^)]+)\))"));
  QString withPictures;
  qsizetype done = 0;
  for (const QRegularExpressionMatch& match : kPicture.globalMatch(markdown)) {
    QFile picture(folder + match.captured(2));
    if (!picture.open(QIODevice::ReadOnly)) {
      std::fprintf(stderr, "gustline-manual: cannot read the picture %s\n",
                   qPrintable(match.captured(2)));
      return 1;
    }
    withPictures += markdown.mid(done, match.capturedStart() - done) + match.captured(1) +
                    QStringLiteral("data:image/png;base64,") +
                    QString::fromLatin1(picture.readAll().toBase64()) + QLatin1Char(')');
    done = match.capturedEnd();
  }
  withPictures += markdown.mid(done);
  document.setMarkdown(withPictures);

  QPdfWriter writer(QString::fromLocal8Bit(argv[2]));
  writer.setTitle(QStringLiteral("Gustline user's manual"));
  writer.setCreator(QStringLiteral("Gustline"));
  writer.setResolution(300);
  writer.setPageLayout(QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait,
                                   QMarginsF(20, 20, 20, 20), QPageLayout::Millimeter));
  // Paginates without cutting lines and numbers the pages.
  document.print(&writer);
  return 0;
}
