#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QString>

namespace Tavelo
{

/// A system symbol by its name, in the middle of its item. It is drawn, not written: a text would need an engine of the
/// font for each of the window's sizes before the first frame.
class SymbolIcon : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString symbol READ symbol WRITE setSymbol NOTIFY symbolChanged)
    /// In pixels, as large as beside a text of that size; the item's own size follows from it. An item that is made
    /// smaller than its own size cuts the symbol off.
    Q_PROPERTY(qreal size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged REQUIRED)

public:
    explicit SymbolIcon(QQuickItem *parent = nullptr);

    const QString &symbol() const { return m_symbol; }
    qreal size() const { return m_size; }
    const QColor &color() const { return m_color; }

    void setSymbol(const QString &symbol);
    void setSize(qreal size);
    void setColor(const QColor &color);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void symbolChanged();
    void sizeChanged();
    void colorChanged();

private:
    QString m_symbol;
    qreal m_size = 0;
    QColor m_color = Qt::black;
};

} // namespace Tavelo
