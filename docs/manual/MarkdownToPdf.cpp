// gustline-manual MARKDOWN PDF: sets the user's manual, written in Markdown, as a PDF of
// numbered Letter pages.
#include <QFile>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
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
  document.setMarkdown(QString::fromUtf8(source.readAll()));

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
