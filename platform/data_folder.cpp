#include "data_folder.h"

#include <QStandardPaths>

std::string user_data_folder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return (folder + QStringLiteral("/kestrom")).toStdString();
}
