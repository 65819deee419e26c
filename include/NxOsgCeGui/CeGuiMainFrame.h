// SPDX-License-Identifier: MIT
#pragma once

#include <NxOsgCeGui/BtnUnit.h>
#include <NxOsgCeGui/CeGuiDrawable.h>
#include <NxOsgCeGui/Export.h>
#include <NxOsgCeGui/GuiTypes.h>
#include <NxOsgCeGui/StaPage.h>

#include <afxwin.h>

#include <osg/Camera>
#include <osg/Group>
#include <osg/State>
#include <osg/observer_ptr>
#include <osg/ref_ptr>
#include <osgViewer/Viewer>

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class CeGuiToolBar;

namespace CEGUI
{
class Window;
}

/// The interface in the 3D view: the one object through which a host reaches it.
///
/// Order of use: `Init` with the viewer, add `GetGUINode()` to the scene, let the viewer run (its first resize event builds
/// the frame; size the view once after `Init`, since no such event comes by itself), forward the window's timer ticks and
/// mouse moves, and `CloseGuiSystem` before the viewer's context goes away. After that `Init` may be called again, with the
/// same or another viewer.
///
/// All of it belongs to the thread that handles the viewer's events and draws; nothing is locked. Every operation is safe in
/// every state: before `Init`, between `ClearAllWindows` and `CreateMainFrame`, and after `CloseGuiSystem`; what it cannot do
/// then it leaves undone. Only `Init` and `CreateMainFrame` raise (CEGUI::Exception).
///
/// Every operation may be called from a slot of an event of CEGUI, and from a message loop or a frame that such a slot runs.
/// `CloseGuiSystem`, `Init`, `ClearAllWindows`, `CreateMainFrame` and size events are put off there until the outermost slot has
/// returned, in the order of their calls; a failure is then logged instead of raised. After `CloseGuiSystem` the interface counts
/// as closed at once. OpenSceneGraph forbids changes of the scene graph during a traversal, so that a slot must leave
/// `GetGUINode()` where it is.
///
/// View pixels have their origin at the top left of the 3D view.
class NXOSGCEGUI_API CeGuiMainFrame
{
public:
    /// Rows of names and values.
    using PropertyRows = std::vector<std::pair<CString, CString>>;

    /// The process's one instance, made by the first call; it lives until the process ends.
    static CeGuiMainFrame* GetInstance();

    /// Releases CEGUI and everything made with it; the records, titles and settings stay. Nothing when not initialised.
    virtual void CloseGuiSystem();
    /// Destroys every window and picture of the interface, and loads the skin's own imageset again. `CreateMainFrame` builds
    /// them anew; a resize does both.
    virtual void ClearAllWindows();

    /// The setters of the scene title only store: `ChangeTitleText` also redraws.
    virtual void SetSceneTitle(const CString& title);
    virtual CString GetSceneTitle();
    virtual void SetSceneTitleColor(COLORREF color); ///< 0x00BBGGRR
    virtual COLORREF GetSceneTitleColor() const;
    virtual void SetSceneTitleFontStyle(const CString& face); ///< font family name
    virtual CString GetSceneTitleFontStyle() const;
    virtual void SetSceneTitleFontHeight(const float& height); ///< pixels
    virtual float GetSceneTitleFontHeight() const;

    virtual void SetStartPageTitle(const CString& title);
    virtual CString GetStartPageTitle() const;
    virtual void SetStartPageTitleColor(COLORREF color); ///< 0x00BBGGRR
    virtual COLORREF GetStartPageTitleColor() const;

    /// Does nothing and returns true.
    virtual bool RefreshButton(GUIBTNTYPE type);
    /// The first record of that name (case-sensitive) and kind, or null. Valid until the list is next changed.
    virtual BTN_UNIT* GetBtnProperty(const CString& name, int kind);

    /// Makes the HUD camera and drawable and starts CEGUI on the viewer's context, which stays current. While the viewer's camera
    /// has no context (before `realize`), CEGUI starts with the first size event that finds one; the log says so.
    ///
    /// The viewer is made single-threaded: input, drawing and interface belong to one thread.
    /// @param viewer not owned; may go away after `CloseGuiSystem`
    /// @return always true
    /// @throws CEGUI::Exception when the skin is missing or wrong
    bool Init(osgViewer::Viewer* viewer, GUIUserType userType);
    bool IsInit() const;

    /// Whether the host should show the system's mouse cursor: set by hovering over the interface. The host clears it.
    bool IsDisplySystemMouse() const;
    void SetDisplySystemMouse(bool display);

    GUIUserType GetUser();
    /// The HUD camera "gui_Camera", for the host's scene; null before `Init` and after `CloseGuiSystem`.
    osg::ref_ptr<osg::Group> GetGUINode();

    /// The host's WM_TIMER; tick 2022 drives the slide-out animation of bars.
    void OnTimer(UINT_PTR nIDEvent);
    /// The host's mouse moves, in view pixels: bars slide in and hide by them.
    void OnMouseMove(UINT nFlags, CPoint point);
    /// Does nothing; a host may call it every frame.
    void UpdateEvent();

    /// Stores the size of the view in pixels; nothing is laid out again.
    void SetWindowSize(UINT width, UINT height);
    void GetWindowSize(UINT& width, UINT& height);
    /// The viewer's native window, or null.
    HWND GetHwnd();
    /// The last mouse position that the viewer's events brought, in view pixels.
    CPoint GetMousePoint();
    /// False suppresses the scene's context menu once.
    void EnablePopupMenu(bool enable);
    /// The window of the control button whose menu the user opened last; empty when there is none.
    CString GetEditWindowName();
    /// Where the right button was last pressed, in view pixels.
    CPoint GetAddBtnMousePoint();
    void SetAddBtnMousePoint(CPoint point);

    bool IsOpenPropertyDlg();
    bool IsShowLeftToolBar();
    bool IsFullScene();

    /// Replaces the control buttons by a copy. The current index stays, and nothing is built anew.
    void SetCtrlBtnInfo(const std::vector<BTN_UNIT>& records);
    /// The control buttons themselves, for reading and editing in place.
    std::vector<BTN_UNIT>& GetCtrlBtnInfo();
    /// The record at an index, or null. Valid until the list is next changed.
    BTN_UNIT* GetBtnProperty(int index);
    /// As the virtual one; stores the record's index when there is one.
    BTN_UNIT* GetBtnProperty(const CString& name, int kind, int& index);
    /// Gives the first record of that name other values. False in every case, also after a change.
    bool SetEditBtnProperty(const CString& name, const BTN_UNIT& unit);
    /// Does nothing and returns true.
    bool SetEditBtnMoveState(const CString& name, bool moving);
    /// Makes a record current, the nearest one for an index outside the list; -1 with an empty list. Nothing is posted.
    void SetBtnIndex(int index);
    /// -1 for none.
    int GetBtnIndex();
    /// The next or the previous record; from none, the previous one is the first. The host is told.
    /// @return false when there is none
    bool AddBtnIndex();
    bool SubBtnIndex();
    /// Destroys the window of that very name, if there is one, and erases the first record of that name. An exception from CEGUI
    /// ends it before the record (logged).
    void DeleteButton(const CString& name);
    /// Destroys the windows "TavGuiButton_0", ... and their pictures, one for each record, and goes on past those that fail
    /// (logged). The records stay.
    void ClearAllCtrlBtn();

    STAPAGE& GetStaPageParameter();
    void SetStaPageParameter(STAPAGE& parameter);
    /// Sets the start page's parameters back to their defaults and prints its three lines onto its picture, which is written
    /// to "exeFiles\pics\exeGuiImage.bmp" of the application directory. Without the picture the parameters alone are reset.
    void ClearStaPageParameter();

    /// Rows of the property panel, in display order; `RefreshPropertyDlg` shows them.
    void setPropertyData(PropertyRows& rows);
    void getPropertyData(PropertyRows& rows);
    int PropertyRowCount() const;
    /// A row's name; empty for a row that is not there.
    CString PropertyRowName(int row) const;
    /// Rows kept for the host; nothing shows them.
    void setTargetData(PropertyRows& rows);
    PropertyRows& getTargetData();

    /// Opens or closes the property panel.
    /// @param button the CEGUI window of the tool that shows the state, or null
    void OpenPropertyDlg(void* button, bool open);
    /// Does nothing (kept on purpose): `OpenPropertyDlg` closes the panel.
    void ClosePropertyDlg();
    /// Draws and lays out the panel anew.
    /// @return whether it is open and could be laid out; a view under 240 x 200 pixels cannot hold it
    bool RefreshPropertyDlg();
    /// Whether a point (view pixels; only x counts) lies left of the open panel.
    bool IsNeedRefreshPropertyDlg(CPoint point);

    /// Shows a text in the one tooltip window, in place of the one that is shown; an empty text shows none.
    /// @param x,y the window's top left corner, view pixels
    void CreateTooltipWindow(int x, int y, const CString& text);
    void DestroyTooltipWindow();

    /// Builds everything that is seen around the 3D view, for the present window size.
    /// @return false when there is no drawable, no root sheet or no skin imageset; true otherwise
    /// @throws CEGUI::Exception when a picture of the skin is missing or the frame stands already; what was built in this
    ///     call is released then
    bool CreateMainFrame();
    /// Destroys every bar of the frame (the spelling is the exported name). The root sheet stays.
    void DestoryAllToolBar();

    /// Loads the picture "bottomBG.png" and makes no window (kept on purpose).
    void CreateToolBar();
    /// Toggles the left list.
    /// @param button the CEGUI window of the tool that shows the state, or null
    void OnToolBarRCList(void* button);

    /// Whether bars that hide by themselves slide out instead of vanishing: the tool bar, the left list, and the title bar in
    /// full scene. Off at the start. The host has to run a timer 2022 and forward it to `OnTimer`; ten ticks take a bar out.
    void EnableSlideOut(bool enable);
    bool IsSlideOutEnabled() const;

    /// Stores the scene title's four properties and redraws it.
    /// @param color 0x00BBGGRR
    /// @param fontHeight pixels
    void ChangeTitleText(const CString& title, COLORREF color, CString fontStyle, float fontHeight);
    /// Sets the four properties back to their defaults; nothing is redrawn.
    void ClearTitleSet();
    /// Shows the picture "tavtitleimgefile.bmp", which the host has written into the CEGUI resource directory, in place of the
    /// title, until the frame is built anew.
    void CreateTitle(const CString& title, COLORREF color);

    /// Gives the whole view to the scene, or the frame back. Camera, viewport and host window stay as they are.
    void OnToolBarFullScene(bool full);

    /// Makes the viewer's OpenGL context current, as whatever makes or drops pictures of the interface needs it: between frames
    /// no context is. False when there is none. It is not released here.
    bool MakeContextCurrent();

    /// When the interface is drawn among the cameras of the scene that are drawn after it (`osg::Camera::POST_RENDER`): after all
    /// of a lower number, and before those of a higher one, which lie over it then. 0 at the start. Takes effect with the next
    /// frame, and stays for every later `Init`.
    void SetRenderOrder(int orderNum);

    /// Posts `GUI_HOST_MESSAGE` to the viewer's window; without one the message lands in the calling thread's own queue.
    void NotifyHost(UINT code, LPARAM value);

protected:
    osg::Camera* CreateHudCamera();
    void CreateGuiDrawable();
    void InitGuiDrawable();

private:
    friend class CeGuiEventHandler;

    CeGuiMainFrame();
    ~CeGuiMainFrame();
    CeGuiMainFrame(const CeGuiMainFrame&) = delete;
    CeGuiMainFrame& operator=(const CeGuiMainFrame&) = delete;

    osgViewer::GraphicsWindow* ViewerWindow();
    /// Whether an event names another graphics context than that of the viewer's camera.
    bool IsOfOtherContext(const osgGA::GUIEventAdapter& event) const;
    /// Whether CEGUI is there and belongs to this object: false as soon as the interface is closed.
    bool HasGui() const;
    /// Whether what CEGUI has made is in another context than this one: in one that is closed, most likely.
    bool LivesElsewhere(const osg::GraphicsContext& context) const;
    /// Starts CEGUI in the viewer's present context when it is not there, or is in a context that is gone. A failure is logged.
    /// @return whether it is there
    bool StartGui();
    void FinishGui(CeGuiDrawable& drawable);
    void TearDown(osg::ref_ptr<CeGuiDrawable> drawable, osg::ref_ptr<osg::Camera> camera, bool traversed);
    /// Lays the chrome out for a view of this size, in pixels.
    void SizeView(int width, int height);
    void ClearFrame();
    bool BuildFrame();

    CeGuiToolBar* FindBar(const CString& name);
    /// Makes a bar that this frame owns. Nothing enters it in the frame table yet.
    CeGuiToolBar& NewBar(const RECT& rect, const CString& name, const CString& imageFile, UINT barType);
    /// Adds the bar's window to the root sheet and enters the bar in the frame table.
    void EnterBar(CeGuiToolBar& bar);
    /// Lets go of bars that are no longer in the frame table.
    void ReleaseBars();
    void ReleaseFailedFrame();
    void RestoreFrameState();
    /// Gives the bars but the panel's the places and ways to hide of the present mode.
    void LayOutForScene();
    int ControlButtonCount() const;
    void StepBtnIndex(int step);
    bool ChangeLeftBtnState(int oldIndex, int newIndex, bool scrollTo);
    CSize SceneTitleSize() const;
    void CreateRootSheet();
    void CreateTitleBar();
    void AddTitleText(CeGuiToolBar& bar);
    void CreateBorders();
    void CreateBottomToolBar();
    bool IsFrameBuilt() const;
    void RefreshPanelFrame(CeGuiToolBar* panel);
    bool RefreshPropertyList(CeGuiToolBar* list);
    void ShowPropertyTool(CEGUI::Window* button);
    void CreateLeftList();
    /// The window of a tool, counted from 1; null when there is none.
    CEGUI::Window* ToolButton(int number);
    /// The events of every button that is added to the bar from now on: hover, tooltip, press.
    static void AddItemEvents(CeGuiToolBar& bar);
    static void SubscribeSlidingBar(CeGuiToolBar& bar);

    osg::ref_ptr<CeGuiDrawable> drawable_;
    osg::ref_ptr<osg::Camera> hudCamera_;
    osg::observer_ptr<osgViewer::Viewer> viewer_;
    /// Of the context that CEGUI has been started in: its textures are there.
    osg::observer_ptr<osg::State> guiState_;
    UINT windowWidth_ = 800;
    UINT windowHeight_ = 600;
    int renderOrder_ = 0;
    bool displaySystemMouse_ = false;
    bool initialised_ = false;
    GUIUserType userType_ = GUI_USER_FULL;
    static constexpr COLORREF DefaultTitleColor = 0xE1C8C5; // red 197, green 200, blue 225
    static constexpr float DefaultTitleHeight = 16.0f;      // pixels
    CString sceneTitle_;
    COLORREF sceneTitleColor_ = DefaultTitleColor;
    float sceneTitleFontHeight_ = DefaultTitleHeight;
    CString sceneTitleFontStyle_;
    CString preferredFontFace_;
    CString startPageTitle_;
    COLORREF startPageTitleColor_ = 0;
    std::vector<BTN_UNIT> controlButtons_;
    int currentButton_ = -1;
    bool propertyDlgOpen_ = false;
    bool showLeftToolBar_ = true;
    bool fullScene_ = false;
    bool slideOut_ = false;
    /// Never changed, only replaced: a panel goes on showing the rows of its last refresh.
    std::shared_ptr<const PropertyRows> propertyData_ = std::make_shared<const PropertyRows>();
    PropertyRows targetData_;
    STAPAGE startPage_;
    CPoint addButtonMousePoint_;
    /// By window name, in ordinal order. Refers to bars of `bars_`.
    std::map<CString, CeGuiToolBar*> frameTable_;
    std::vector<std::unique_ptr<CeGuiToolBar>> bars_;
    // Layout of the frame, in view pixels but for the first, which is an item's index.
    int titleTextItem_ = -1;
    int titleBarHeight_ = 50;
    int toolBarHeight_ = 90;
    int borderWidth_ = 2;
};
