#include "shell/editor_resources.h"

#include <QtGlobal>

void initEditorResources()
{
    Q_INIT_RESOURCE(icons);
    Q_INIT_RESOURCE(conf);
}
