#pragma once

#include "platform/posix/running_instance.h"

#include <QObject>
#include <QTimer>

#include <deque>
#include <string>

class QSocketNotifier;

namespace tarvex {

/// Hears what other processes of the user want of this Tarvex. A process gets its answer at once; its wish is fulfilled
/// when the program is idle: it has started, no box waits for the user, and no loader runs.
class InstanceCalls : public QObject {
    Q_OBJECT
public:
    InstanceCalls();
    ~InstanceCalls() override;

    /// Where that isn't possible, nobody is heard.
    void listen(const std::string& socket);
    /// The program has started.
    void fulfil();

signals:
    void wanted(const tarvex::InstanceRequest& request);

private:
    void accept();
    void hear(const InstanceRequest& request);
    void lookSoon();
    void fulfilNext();

    std::string m_path;
    FileDescriptor m_listening;
    std::deque<InstanceRequest> m_waiting;
    QTimer m_next; ///< runs out soon after something has changed that a wish may wait for
    int m_callers = 0;
    bool m_ready = false;
};

} // namespace tarvex
