#include "resources/TextLanguage.h"

#include <QLocale>

#include <algorithm>

namespace {

/// Written Portuguese of one country helps those of the other; Chinese of one script does not.
bool sameTexts(const QLocale &one, const QLocale &other)
{
    return one.language() == other.language() && one.script() == other.script();
}

} // namespace

const QStringList &TextLanguage::available()
{
    static const QStringList names{QStringLiteral("ar"),   QStringLiteral("de"),    QStringLiteral("es"),
                                   QStringLiteral("fr"),   QStringLiteral("it"),    QStringLiteral("ja"),
                                   QStringLiteral("pl"),   QStringLiteral("pt_BR"), QStringLiteral("ru"),
                                   QStringLiteral("zh_CN")};
    return names;
}

QString TextLanguage::bestOf(const QStringList &wanted)
{
    for (const QString &name : wanted) {
        const QLocale locale(name);
        if (locale.language() == QLocale::English)
            return {};
        const auto found = std::find_if(available().begin(), available().end(),
                                        [&locale](const QString &table) { return sameTexts(QLocale(table), locale); });
        if (found != available().end())
            return *found;
    }
    return {};
}

bool TextLanguage::isKnown(const QString &name)
{
    return QLocale(name).language() == QLocale::English || !bestOf({name}).isEmpty();
}
