// The register tab: the list of registers, and the options of the one that is selected.
#pragma once

class QWidget;

namespace ovl {

class Bindings;

QWidget* BuildRegisterPage(Bindings& bindings);

}  // namespace ovl
