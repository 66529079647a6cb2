#pragma once

#include <QDialog>

#include <functional>
#include <memory>

namespace Ostrel::App {

/// Help > About: the product's name and version over the picture the shell ships
/// (":/About/about-top@2x.png"), with a link to the product's home page. The shell's
/// productStyle.qss styles it by its class and object names, the same in every theme.
class AboutBoxDialog : public QDialog
{
    Q_OBJECT

public:
    /// @p openHomePage runs when the link is clicked.
    AboutBoxDialog(const QString& presentableName, const std::function<void()>& openHomePage,
                   QWidget* parent = nullptr);
    ~AboutBoxDialog() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();

    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
