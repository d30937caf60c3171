#pragma once

#include <QWidget>

#include <functional>
#include <vector>

class QLabel;
class QLineEdit;

/// The line over the map in which a locality is sought. Enter goes to the next one that was found, with Shift
/// to the one before; Escape closes it.
class AtlasFindBar : public QWidget
{
    Q_OBJECT

public:
    /// The localities that a text finds.
    using Find = std::function<std::vector<int>(const QString&)>;

    explicit AtlasFindBar(Find find);

    /// Shows the line, ready for a text.
    void begin();

Q_SIGNALS:
    void found(int locality);
    void closed();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void seek();
    /// Goes so many places on among those that were found, round about.
    void step(int by);
    void showHit();
    void close();

    Find m_find;
    QLineEdit* m_text;
    QLabel* m_hit;
    std::vector<int> m_hits;
    int m_current = 0;
};
