#include "bundle.h"

#include "system_log.h"

#include <QFile>
#include <QLocale>
#include <QTranslator>

namespace {

QString qstring(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

bundle::bundle(std::string root, std::string locale)
    : root_(std::move(root)), strings_(std::make_unique<QTranslator>()),
      fallback_(std::make_unique<QTranslator>()) {
    const QString folder = qstring(root_) + QStringLiteral("/strings");
    const QLocale wanted = locale.empty() ? QLocale() : QLocale(qstring(locale));
    // A language without a table is not a failure: the fallback is used.
    (void)strings_->load(wanted, QStringLiteral("kestrom"), QStringLiteral("_"), folder);
    if (!fallback_->load(QStringLiteral("kestrom_en"), folder))
        qCWarning(log_platform, "no strings table below %s", root_.c_str());
}

bundle::~bundle() = default;

std::optional<std::string> bundle::resource_text(std::string_view name,
                                                 std::string_view type) const {
    QFile file(qstring(root_) + QStringLiteral("/tables/") + qstring(name) + QLatin1Char('.') +
               qstring(type));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll().toStdString();
}

std::string bundle::localized(std::string_view key) const {
    const std::string id(key);
    for (const QTranslator* table : {strings_.get(), fallback_.get()})
        if (const QString text = table->translate(nullptr, id.c_str()); !text.isEmpty())
            return text.toStdString();
    return {};
}

std::string bundle::image_path(std::string_view name) const {
    return root_ + "/images/" + std::string(name);
}
