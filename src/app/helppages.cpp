// A step of the build: makes the help's HTML pages from its Markdown pages.
// Usage: helppages DIRECTORY PAGE.md ...
#include <QtGui>

namespace {

constexpr auto style = R"(<style>
body { font-family: sans-serif; line-height: 1.4; max-width: 46em; margin: 1em auto; padding: 0 1em;
       background: white; color: #222 }
table { border-collapse: collapse } td, th { padding: .2em .6em; text-align: left }
pre, code { font-family: monospace } pre { background: #f0f2f5; padding: .6em }
</style></head>)";

/// What the page looks like is said by the style alone, but for what Markdown itself marks.
QByteArray pageOf(QString markdown) {
    static const QRegularExpression link(QStringLiteral(R"(\]\(([a-z]+)\.md\))"));
    static const QRegularExpression bodyStyle(QStringLiteral("<body[^>]*>"));
    markdown.replace(link, QStringLiteral("](\\1.html)"));
    QTextDocument document;
    document.setMarkdown(markdown);
    document.setMetaInformation(QTextDocument::DocumentTitle, document.firstBlock().text());
    QString html = document.toHtml();
    html.replace(bodyStyle, QStringLiteral("<body>"));
    html.replace(QStringLiteral("</head>"), QString::fromLatin1(style));
    return html.toUtf8();
}

bool convert(const QString& source, const QDir& directory) {
    QFile in(source);
    QSaveFile out(directory.filePath(QFileInfo(source).baseName() + QStringLiteral(".html")));
    if (!in.open(QIODevice::ReadOnly) || !out.open(QIODevice::WriteOnly))
        return false;
    out.write(pageOf(QString::fromUtf8(in.readAll())));
    return out.commit();
}

} // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2 || !QDir().mkpath(arguments[1]))
        return EXIT_FAILURE;
    for (const QString& source : arguments.mid(2))
        if (!convert(source, QDir(arguments[1]))) {
            qCritical("No help page could be made of %s", qUtf8Printable(source));
            return EXIT_FAILURE;
        }
    return EXIT_SUCCESS;
}
