#pragma once

class QDialog;

namespace Engine {
class DataSet;
}

namespace Tallymere {

// Says in a dialog that finds rows of a list that the list is filtered, so that what is not found may still be there.
// Nothing for a list that is not. To be called once the form has been set up.
void addFilterNote(QDialog &dialog, const Engine::DataSet &list);

} // namespace Tallymere
