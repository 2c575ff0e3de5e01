#pragma once

#include <QWidget>

namespace halvo {

// The marker every screen carries (as "MDIcontrol1"): it takes no room, is never shown, and has
// no property or event of its own.
class MDIcontrol : public QWidget {
public:
    explicit MDIcontrol(QWidget* pai = nullptr) : QWidget(pai) {
        setVisible(false);
        setFixedSize(0, 0);
    }
};

}  // namespace halvo
