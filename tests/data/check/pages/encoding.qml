import QtQuick 2.15

Text { text: "Grüße" }
