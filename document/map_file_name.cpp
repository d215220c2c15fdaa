#include "document/map_file_name.h"

#include <algorithm>

QString bareMapFileName(const QString &name)
{
    const int slash = std::max(name.lastIndexOf('/'), name.lastIndexOf('\\'));
    const QString bare = name.mid(slash + 1);
    return bare == QLatin1String(".") || bare == QLatin1String("..") ? QString() : bare;
}
