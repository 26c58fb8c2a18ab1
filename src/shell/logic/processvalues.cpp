#include "shell/logic/processvalues.h"

ProcessValues& Process()
{
    static ProcessValues values;
    return values;
}
