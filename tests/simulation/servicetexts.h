#pragma once

#include <QByteArray>
#include <QString>

/// A service with a measurement of 5 s; `fails` is what its file says of failing.
inline QByteArray meter(const QByteArray& fails = {}, const QByteArray& seed = "1")
{
    return R"({"service": "s", "seed": )" + seed + R"(, "items": [
        {"id": ":result:s:state:", "type": "std::string", "value": "idle"},
        {"id": ":result:s:progress:", "type": "uint", "value": 0},
        {"id": ":result:s:loss:", "type": "double", "judged": {"passing": {"to": 4}, "warning": {"to": 5}}},
        {"id": ":result:s:events:", "type": "int"},
        {"id": ":result:s:level:", "type": "int", "value": -1,
          "moves": {"as": "ramp", "from": 0, "to": 100, "period": 10000, "every": 100, "while": ":action:s:start:"}},
        {"id": ":result:s:power:", "type": "double", "value": 0,
          "moves": {"as": "walk", "from": -10, "to": 10, "while": ":action:s:start:"}},
        {"id": ":action:s:start:", "type": "action", "label": "Start",
          "does": {"set": {":result:s:state:": "measuring %1"}, "reply": "Measuring %1.", "runs": 5000,
            "progress": ":result:s:progress:",)" + fails + R"(
            "done": {":result:s:state:": "%1 done", ":result:s:loss:": {"from": 3.5, "to": 4.5}, ":result:s:events:": {"from": 1, "to": 3}},
            "stopped": {":result:s:state:": "stopped"}}},
        {"id": ":action:s:stop:", "type": "action",
          "does": {"stops": ":action:s:start:", "reply": "Stopped."}}]})";
}
inline const QByteArray failing = R"("fail": "No light.", "fails": 0.1, "failed": {":result:s:state:": "failed"},)";
inline const QString state = ":result:s:state:";
inline const QString progress = ":result:s:progress:";
inline const QString power = ":result:s:power:";
inline const QString level = ":result:s:level:";
inline const QString start = ":action:s:start:";

inline QByteArray item(const QByteArray& name, const QByteArray& moves)
{
    return R"({"id": ":result:s:)" + name + R"(:", "type": "int", "moves": )" + moves + "}";
}

inline QByteArray service(const QByteArray& items, const QByteArray& happensAndMore = "[]")
{
    return R"({"service": "s", "items": [)" + items + R"(], "happens": )" + happensAndMore + "}";
}
