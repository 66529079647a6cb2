#include "App/Application/NagScreen/GifDimmer.h"

#include <QLabel>
#include <QMovie>
#include <QVBoxLayout>

namespace Ostrel::App::NagScreen {

GifDimmer::GifDimmer(QWidget* parent, QWidget* target, Qt::WindowFlags flags)
    : BaseDimmer(parent, target, flags), m_movie(new QMovie(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* label = new QLabel(this);
    label->setScaledContents(true);
    label->setMovie(m_movie);
    layout->addWidget(label);
    connect(m_movie, &QMovie::frameChanged, this, &GifDimmer::onFrame);
}

GifDimmer::~GifDimmer() = default;

void GifDimmer::onFrame(int frame)
{
    if (frame != m_movie->frameCount() - 1)
        return;
    // Stops on the last frame of the last pass, so the picture stays instead of vanishing.
    if (!m_infinite && m_loopsDone >= m_loopCount - 1)
        m_movie->stop();
    ++m_loopsDone;
}

void GifDimmer::SetParameters(const QMap<QString, QString>& parameters)
{
    const auto fileName = parameters.constFind(QStringLiteral("fileName"));
    if (fileName != parameters.constEnd())
        m_movie->setFileName(fileName.value());
    const auto loopCount = parameters.constFind(QStringLiteral("loopCount"));
    if (loopCount != parameters.constEnd()) {
        m_infinite = loopCount.value() == QLatin1String("infinity");
        bool valid = false;
        const int count = loopCount.value().toInt(&valid, 10);
        m_loopCount = valid ? count : 1;
    }
}

std::vector<QString> GifDimmer::FilePathParameters() const
{
    return {QStringLiteral("fileName")};
}

QMovie* GifDimmer::Movie() const
{
    return m_movie;
}

int GifDimmer::LoopCount() const
{
    return m_loopCount;
}

bool GifDimmer::IsInfinite() const
{
    return m_infinite;
}

int GifDimmer::LoopsDone() const
{
    return m_loopsDone;
}

void GifDimmer::showEvent(QShowEvent* event)
{
    m_loopsDone = 0;
    m_movie->start();
    BaseDimmer::showEvent(event);
}

void GifDimmer::hideEvent(QHideEvent* event)
{
    m_movie->stop();
    BaseDimmer::hideEvent(event);
}

} // namespace Ostrel::App::NagScreen
