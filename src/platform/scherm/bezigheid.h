// A window during its own long work: what could disturb the work cannot be used.
#pragma once

#include <QPointer>
#include <QWidget>

#include <vector>

namespace plexoran {

/// While it lives these parts of the window are disabled. At the end what had the focus gets it
/// back: a part that is disabled loses it.
class Bezigheid {
  public:
    Bezigheid(const QWidget& venster, std::vector<QWidget*> delen)
        : focus_(venster.focusWidget()), delen_(std::move(delen))
    {
        for (QWidget* deel : delen_)
            deel->setEnabled(false);
    }
    ~Bezigheid()
    {
        for (QWidget* deel : delen_)
            deel->setEnabled(true);
        if (focus_ != nullptr)
            focus_->setFocus();
    }
    Bezigheid(const Bezigheid&) = delete;
    Bezigheid& operator=(const Bezigheid&) = delete;

  private:
    QPointer<QWidget> focus_;
    std::vector<QWidget*> delen_;
};

} // namespace plexoran
