#pragma once

#include <QProcess>
#include <QVector>

namespace bench {

/// A process that ends with this one, however this one ends.
class OwnProcess : public QProcess
{
    Q_OBJECT

public:
    /// Ends the program when the process does not start.
    OwnProcess(const QString& program, const QStringList& arguments);
    /// Closes its input, and ends it when it does not end by itself.
    ~OwnProcess() override;

    /// The next line of its output; ends the program when none comes.
    QByteArray nextLine();

protected:
    void setupChildProcess() override;
};

/// A bus of our own, for this process and those that it starts.
class PrivateBus
{
public:
    PrivateBus();
    ~PrivateBus();
    Q_DISABLE_COPY_MOVE(PrivateBus)

private:
    OwnProcess m_daemon;
};

/// This program in another role, which does what it is told.
class Helper
{
public:
    explicit Helper(const QString& role);

    /// Does not wait.
    void tell(const QString& command, const QVector<int>& arguments = {});
    /// The next answer; ends the program when none comes.
    QVector<double> answer();
    QVector<double> ask(const QString& command, const QVector<int>& arguments = {});

private:
    OwnProcess m_process;
};

} // namespace bench
