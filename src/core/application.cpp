#include "core/application.h"

namespace ovl::core {

Application::Application() {
  frmMain.Register(registry);
  frmSettSR.Register(registry);
  frmScanBProgress.Register(registry);
  frmOK_buttom.Register(registry);
  frmMicros.Register(registry);
  FrmSubMenu.Register(registry);
  frmView.Register(registry);
  frmSetEXCPSTR.Register(registry);
  frmSetRange.Register(registry);
  frmAbout.Register(registry);
}

}  // namespace ovl::core
