#pragma once

#include "base/session.h"
#include "toolkit/platform/instance.h"

#include <QString>
#include <QStringList>

#include <memory>

class Tfrm_menu;

namespace frame {

/// What the process was started with. Argument 0 is the program's own path, 1 the launch token, 2 the login id of the
/// suite's user, 3 to 6 texts for the status bar; a missing one reads as an empty text.
struct ProgramEnvironment {
    QString programPath;
    QString folder; ///< the settings file lies here
    QStringList arguments;
    base::Clock clock = base::systemClock();
    base::UserSettingReader readUserSetting = base::systemUserSetting();
};

/// The fixed value that the suite's launcher and this program share.
[[nodiscard]] QString launchToken();

/// The program from its entry to its end: refuses a second instance and a wrong token, opens the frame, passes the
/// launcher's texts on. Refusals and a server out of reach end it without a word to the user.
class Program final {
public:
    explicit Program(ProgramEnvironment environment);
    ~Program();

    /// The part of the entry that needs no window system: true where this process may go on.
    [[nodiscard]] bool isAdmitted();
    /// Creates the frame and shows it; false where no session could be opened. Needs an application object.
    [[nodiscard]] bool openFrame();
    [[nodiscard]] bool start() { return isAdmitted() && openFrame(); }

    void closeAll();

private:
    [[nodiscard]] QString argument(int position) const;

    ProgramEnvironment m_environment;
    platform::InstanceGuard m_instance;
    std::unique_ptr<Tfrm_menu> m_frame;
};

} // namespace frame
