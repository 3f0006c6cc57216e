#pragma once

#include "document/reporttemplate.h"
#include "plotcontent.h"
#include "plotframe.h"
#include "plotgestures.h"
#include "plotpictures.h"
#include "plotview.h"

#include <QQmlListProperty>
#include <QQuickItem>
#include <QTimer>
#include <QVariantList>

#include <functional>

namespace uiutils {

/// Curves that grow while they are looked at, with limits, masks, markers and a cursor that reads values. A tap sets
/// the cursor, a drag moves it or the window, two fingers or the wheel zoom, a double tap shows everything again.
///
/// Declare PlotCurve, PlotMarker and items of your own inside. The plot draws at most once in a frame, however many
/// points come. In QML: LivePlot.
class LivePlot : public QQuickItem
{
    Q_OBJECT
    /// What was declared inside: curves, markers, items above the plot, other objects.
    Q_PROPERTY(QQmlListProperty<QObject> contents READ contents CONSTANT)
    Q_CLASSINFO("DefaultProperty", "contents")
    Q_PROPERTY(QVariantList curves READ curves NOTIFY curvesChanged)
    Q_PROPERTY(QVariantList markers READ markers NOTIFY markersChanged)

    /// What x is called, and its unit. The axis of durations and dates says its units itself.
    Q_PROPERTY(QString xLabel READ xLabel WRITE setXLabel NOTIFY labelsChanged)
    Q_PROPERTY(QString xUnit READ xUnit WRITE setXUnit NOTIFY labelsChanged)
    /// LivePlot.Linear, the default; Logarithmic; Duration, in seconds; Date, in seconds since 1970.
    Q_PROPERTY(Scale xScale READ xScale WRITE setXScale NOTIFY scalesChanged)
    /// Of the axes of values: Linear, the default, or Logarithmic.
    Q_PROPERTY(Scale yScale READ yScale WRITE setYScale NOTIFY scalesChanged)
    Q_PROPERTY(Scale rightScale READ rightScale WRITE setRightScale NOTIFY scalesChanged)

    /// How much of the end of the curves is shown, in units of x; 0, the default, shows everything.
    Q_PROPERTY(double follow READ follow WRITE setFollow NOTIFY followChanged)
    /// Whether the x axis runs with the points. It stops when the user moves it, until autoscale().
    Q_PROPERTY(bool following READ isFollowing NOTIFY viewChanged)
    /// Whether both axes show what there is; false while the user looks at a part.
    Q_PROPERTY(bool automatic READ isAutomatic NOTIFY viewChanged)
    /// The part that is shown.
    Q_PROPERTY(double xMinimum READ xMinimum NOTIFY viewChanged)
    Q_PROPERTY(double xMaximum READ xMaximum NOTIFY viewChanged)
    Q_PROPERTY(double yMinimum READ yMinimum NOTIFY viewChanged)
    Q_PROPERTY(double yMaximum READ yMaximum NOTIFY viewChanged)
    Q_PROPERTY(double rightMinimum READ rightMinimum NOTIFY viewChanged)
    Q_PROPERTY(double rightMaximum READ rightMaximum NOTIFY viewChanged)
    /// Where curves are in the item.
    Q_PROPERTY(QRectF plotArea READ plotArea NOTIFY viewChanged)
    /// Whether gestures, wheel and keys work; true by default.
    Q_PROPERTY(bool interactive READ isInteractive WRITE setInteractive NOTIFY interactiveChanged)

    /// Where the cursor is; not a number, the default, for nowhere.
    Q_PROPERTY(double cursorX READ cursorX WRITE setCursorX NOTIFY cursorXChanged)
    Q_PROPERTY(bool cursorVisible READ isCursorVisible NOTIFY cursorXChanged)
    /// What is at the cursor, as one line; and for each visible curve an object with name, text, y, color, verdict.
    Q_PROPERTY(QString cursorText READ cursorText NOTIFY readoutsChanged)
    Q_PROPERTY(QVariantList readouts READ readouts NOTIFY readoutsChanged)
    /// How far the first two visible markers are apart, and what each curve gains from the first to the second; empty
    /// without them.
    Q_PROPERTY(QString deltaText READ deltaText NOTIFY readoutsChanged)
    /// Whether the plot has a box with the readout while there is a cursor; true by default.
    Q_PROPERTY(bool readoutVisible READ isReadoutVisible WRITE setReadoutVisible NOTIFY styleChanged)

    /// The worst verdict of the curves, a code of Status.
    Q_PROPERTY(int verdict READ verdict NOTIFY verdictChanged)
    /// The plot in words, for Accessible.description: each curve with its extent and verdict, and what is at the
    /// cursor. Changes are announced at most once in a second.
    Q_PROPERTY(QString accessibleText READ accessibleText NOTIFY accessibleTextChanged)

    Q_PROPERTY(uiutils::PlotColors* colors READ colors CONSTANT)
    /// In pixels; 12 by default.
    Q_PROPERTY(double textSize READ textSize WRITE setTextSize NOTIFY styleChanged)
    /// Empty, the default, for that of the application.
    Q_PROPERTY(QString fontFamily READ fontFamily WRITE setFontFamily NOTIFY styleChanged)
    /// Of curves without a width of their own, in pixels; 1.7 by default. What exceeds a limit is twice as wide.
    Q_PROPERTY(double lineWidth READ lineWidth WRITE setLineWidth NOTIFY styleChanged)
    /// Whether the names of the curves are above them; true by default.
    Q_PROPERTY(bool legend READ hasLegend WRITE setLegend NOTIFY styleChanged)
    /// What is shown without points; "No data" by default.
    Q_PROPERTY(QString emptyText READ emptyText WRITE setEmptyText NOTIFY styleChanged)

public:
    enum Scale {
        Linear = AxisScale::Linear,
        Logarithmic = AxisScale::Logarithmic,
        Duration = AxisScale::Duration,
        Date = AxisScale::Date
    };
    Q_ENUM(Scale)
    enum Axes { X = PlotView::X, Y = PlotView::Y, Both = PlotView::Both };
    Q_ENUM(Axes)

    explicit LivePlot(QQuickItem* parent = nullptr);
    ~LivePlot() override;

    QQmlListProperty<QObject> contents();
    QVariantList curves() const;
    QVariantList markers() const;
    /// Curves and markers that are made at run time, by an Instantiator for example. They stay the caller's, and leave
    /// the plot when they are deleted.
    Q_INVOKABLE void addCurve(uiutils::PlotCurveItem* curve);
    Q_INVOKABLE void removeCurve(uiutils::PlotCurveItem* curve);
    Q_INVOKABLE void addMarker(uiutils::PlotMarkerItem* marker);
    Q_INVOKABLE void removeMarker(uiutils::PlotMarkerItem* marker);

    QString xLabel() const { return m_content.xLabel; }
    void setXLabel(const QString& label);
    QString xUnit() const { return m_content.xUnit; }
    void setXUnit(const QString& unit);
    Scale xScale() const { return Scale(m_content.xKind); }
    void setXScale(Scale scale);
    Scale yScale() const { return Scale(m_content.yKinds[LeftSide]); }
    void setYScale(Scale scale);
    Scale rightScale() const { return Scale(m_content.yKinds[RightSide]); }
    void setRightScale(Scale scale);

    double follow() const { return m_view.follow(); }
    void setFollow(double width);
    bool isFollowing() const { return m_view.isFollowing(); }
    bool isAutomatic() const { return m_view.isAutomatic(); }
    double xMinimum() const { return view().x().low(); }
    double xMaximum() const { return view().x().high(); }
    double yMinimum() const { return view().y(LeftSide).low(); }
    double yMaximum() const { return view().y(LeftSide).high(); }
    double rightMinimum() const { return view().y(RightSide).low(); }
    double rightMaximum() const { return view().y(RightSide).high(); }
    QRectF plotArea() const { return frame().rect(); }
    bool isInteractive() const { return m_isInteractive; }
    void setInteractive(bool isInteractive);

    double cursorX() const { return m_content.cursorX; }
    void setCursorX(double x);
    bool isCursorVisible() const { return m_content.cursorX == m_content.cursorX; }
    QString cursorText() const;
    QVariantList readouts() const;
    QString deltaText() const;
    bool isReadoutVisible() const { return m_content.hasReadout; }
    void setReadoutVisible(bool isVisible);

    int verdict() const { return m_verdict; }
    QString accessibleText() const;

    PlotColors* colors() { return &m_colors; }
    double textSize() const { return m_content.textSize; }
    void setTextSize(double pixels);
    QString fontFamily() const { return m_content.fontFamily; }
    void setFontFamily(const QString& family);
    double lineWidth() const { return m_content.lineWidth; }
    void setLineWidth(double pixels);
    bool hasLegend() const { return m_content.hasLegend; }
    void setLegend(bool hasLegend);
    QString emptyText() const { return m_content.emptyText(); }
    void setEmptyText(const QString& text);

    /// Shows a part; y is that of the left axis, and the right axis shows the same part of its own.
    Q_INVOKABLE void setWindow(double xMinimum, double xMaximum, double yMinimum, double yMaximum);
    /// Makes distances `factor` times as long around a point of the item, along LivePlot.X, LivePlot.Y or
    /// LivePlot.Both.
    Q_INVOKABLE void zoom(double factor, const QPointF& point, int axes = Both);
    /// The same around the middle.
    Q_INVOKABLE void zoomCentered(double factor, int axes = Both);
    /// Moves what is shown by so many pixels, to the right and down.
    Q_INVOKABLE void pan(double dx, double dy);
    /// Shows everything, or follows the points again.
    Q_INVOKABLE void autoscale();

    /// Sets the cursor to a place of the item, in pixels from the left; it stays in sight.
    Q_INVOKABLE void placeCursor(double pixel);
    /// Moves the cursor, from the middle if there is none.
    Q_INVOKABLE void moveCursor(double pixels);
    Q_INVOKABLE void clearCursor();

    /// The values at a place of the item, and the place of values.
    Q_INVOKABLE double xAt(double pixel) const;
    Q_INVOKABLE double yAt(double pixel) const;
    Q_INVOKABLE QPointF positionOf(double x, double y) const;
    /// A value of x as the user reads it, with its unit or in words.
    Q_INVOKABLE QString xText(double x) const;
    /// The same as deltaText for any two markers.
    Q_INVOKABLE QString deltaBetween(uiutils::PlotMarkerItem* from, uiutils::PlotMarkerItem* to) const;

    /// Adds a plot with what is shown now to the node of the report that is open. Every format draws it, from the saved
    /// document too. In print colours; `title` is written above. Files of data have all points of the curves, unless
    /// there are more than 200,000: then they have those that are drawn.
    Q_INVOKABLE void addToReport(ReportTemplate* report, const QString& tag, const QString& title) const;
    /// What addToReport() stores, the value of the key "plot_data" of a table with the label "plot".
    Q_INVOKABLE QString reportData() const;
    /// Writes the same drawing as a PNG to an instrument path; a width or height below 1 means that of 600 x 400. A
    /// pixel of the size is two of the picture. Returns false if the file could not be written.
    Q_INVOKABLE bool savePicture(
            const QString& path, int width = 0, int height = 0, const QString& title = QString()) const;

Q_SIGNALS:
    void curvesChanged();
    void markersChanged();
    void labelsChanged();
    void scalesChanged();
    void followChanged();
    void viewChanged();
    void interactiveChanged();
    void cursorXChanged();
    void readoutsChanged();
    void verdictChanged();
    void accessibleTextChanged();
    void styleChanged();
    /// The user has tapped the plot, which has set the cursor.
    void tapped(double x, double y);

protected:
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void updatePolish() override;
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;
    void geometryChanged(const QRectF& now, const QRectF& before) override;
    void touchEvent(QTouchEvent* event) override;
    void touchUngrabEvent() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    static void addContent(QQmlListProperty<QObject>* list, QObject* object);
    static int contentCount(QQmlListProperty<QObject>* list);
    static QObject* contentAt(QQmlListProperty<QObject>* list, int index);

    void dropContent(QObject* object);
    void stopListeningTo(QObject* object);
    void dropCurve(QObject* curve);
    void dropMarker(QObject* marker);
    void scaleCurves();
    void judge();
    void speakAnew();
    void changeStyle();
    void redraw();
    void redrawCurves();
    void announceView();
    void announceText();
    const PlotView& view() const;
    const PlotFrame& frame() const;
    void moveView(const std::function<void(PlotView&)>& move);
    void takeFingers(const QVector<QPointF>& fingers, ulong time);
    void takeMouse(QMouseEvent* event, bool isDown);
    void takeGestures();

    PlotColors m_colors;
    PlotContent m_content;
    QVector<QObject*> m_contents;
    // What getters show is computed when they are called, or when the plot is drawn.
    mutable PlotView m_view;
    mutable PlotFrame m_frame;
    mutable bool m_isViewOld = true;
    PlotView m_announcedView;
    QRectF m_announcedArea;
    PlotScene m_scene;
    PlotPictures m_pictures;
    bool m_areCurvesOld = true;
    PlotGestures m_gestures;
    QTimer m_quiet;
    QString m_announcedText;
    int m_verdict = Status::None;
    bool m_isInteractive = true;
};

} // namespace uiutils
