#pragma once

// How a module calls itself in Qt's metadata of plug-ins, which a host reads without loading the file. Beside it stands
// "release", the version of the module.
#define TALLYMERE_MODULE_IID "org.tallymere.Module/1"
