// Drives the program by the accessibility bus alone: what a screen reader says, and what its
// user can do. Each test starts the program anew; run.sh gives it a desktop.
#include <algorithm>
#include <atspi/atspi.h>
#include <csignal>
#include <functional>
#include <gio/gio.h>
#include <gmock/gmock.h>
#include <memory>
#include <ranges>
#include <string>
#include <vector>

namespace {

using testing::_;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Ne;
using testing::Not;
using testing::StartsWith;
using Words = testing::Matcher<const std::string&>;

std::string theProgram, theFolder;

struct Letting
{
    void operator()(void* object) const { g_clear_object(&object); }
};
template <typename T> using Held = std::unique_ptr<T, Letting>;
template <typename T> Held<T> Hold(T* object)
{
    return Held<T>(object);
}

std::string Taken(gchar* text)
{
    const std::string copy = text ? text : "";
    g_free(text);
    return copy;
}

// One object on the bus. A call that the program does not answer yields nothing, 0 or "".
class Control
{
public:
    explicit Control(AtspiAccessible* node) : node_(node, Letting()) {}

    bool Exists() const { return node_ != nullptr; }
    AtspiRole Role() const { return atspi_accessible_get_role(node_.get(), nullptr); }
    std::string Name() const { return Taken(atspi_accessible_get_name(node_.get(), nullptr)); }
    std::string Description() const
    {
        return Taken(atspi_accessible_get_description(node_.get(), nullptr));
    }
    bool Is(AtspiStateType state) const
    {
        const auto states = Hold(atspi_accessible_get_state_set(node_.get()));
        return states && atspi_state_set_contains(states.get(), state);
    }
    bool IsShown() const { return Is(ATSPI_STATE_SHOWING); }
    std::string Text() const
    {
        const auto text = Hold(atspi_accessible_get_text_iface(node_.get()));
        return text ? Taken(atspi_text_get_text(text.get(), 0, -1, nullptr)) : "";
    }
    void Write(const std::string& text) const
    {
        const auto editor = Hold(atspi_accessible_get_editable_text_iface(node_.get()));
        EXPECT_TRUE(editor &&
                    atspi_editable_text_set_text_contents(editor.get(), text.c_str(), nullptr))
            << Name() << " cannot be written in";
    }
    double Value() const { return atspi_value_get_current_value(Range().get(), nullptr); }
    bool HasRange() const
    {
        return atspi_value_get_minimum_value(Range().get(), nullptr) <
               atspi_value_get_maximum_value(Range().get(), nullptr);
    }
    void SetValue(double wanted) const
    {
        EXPECT_TRUE(atspi_value_set_current_value(Range().get(), wanted, nullptr)) << Name();
    }
    void Do(const std::string& action) const
    {
        const auto actions = Hold(atspi_accessible_get_action_iface(node_.get()));
        const int count = actions ? atspi_action_get_n_actions(actions.get(), nullptr) : 0;
        for (int at = 0; at < count; ++at)
            if (Taken(atspi_action_get_action_name(actions.get(), at, nullptr)) == action) {
                EXPECT_TRUE(atspi_action_do_action(actions.get(), at, nullptr)) << Name();
                return;
            }
        FAIL() << Name() << " has no action " << action;
    }
    std::vector<Control> Children() const
    {
        std::vector<Control> children;
        const int count = atspi_accessible_get_child_count(node_.get(), nullptr);
        for (int at = 0; at < count; ++at)
            if (auto* child = atspi_accessible_get_child_at_index(node_.get(), at, nullptr))
                children.emplace_back(child);
        return children;
    }

private:
    Held<AtspiValue> Range() const { return Hold(atspi_accessible_get_value_iface(node_.get())); }

    std::shared_ptr<AtspiAccessible> node_;
};

// What the bus brings meanwhile is heard.
bool ComesTrue(const std::function<bool()>& condition, int patienceMs = 30000)
{
    constexpr int kPauseMs = 20;
    for (int waited = 0; waited < patienceMs; waited += kPauseMs) {
        while (g_main_context_iteration(nullptr, FALSE)) {
        }
        if (condition()) return true;
        g_usleep(kPauseMs * 1000);
    }
    return false;
}

void ExpectSoon(const std::function<std::string()>& now, const Words& wanted)
{
    ComesTrue([&] { return wanted.Matches(now()); });
    EXPECT_THAT(now(), wanted);
}

// What a screen reader hears of without asking, as "WHO inserted: TEXT", "WHO named: TITLE" or "WHO
// described"; a text's first line is enough.
class Listener
{
public:
    Listener()
    {
        for (const char* const kind : kKinds)
            atspi_event_listener_register(listener_.get(), kind, nullptr);
    }
    ~Listener()
    {
        for (const char* const kind : kKinds)
            atspi_event_listener_deregister(listener_.get(), kind, nullptr);
    }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    bool Hears(const std::string& news, int patienceMs = 30000)
    {
        return ComesTrue([&] { return std::ranges::count(heard_, news) > 0; }, patienceMs);
    }
    void Forget()
    {
        Hears("", 100);
        heard_.clear();
    }

private:
    static constexpr const char* kKinds[] = {"object:text-changed:insert",
                                             "object:property-change:accessible-name",
                                             "object:property-change:accessible-description"};

    static void Hear(AtspiEvent* event, void* self)
    {
        const std::string kind = event->type;
        std::string who = Taken(atspi_accessible_get_name(event->source, nullptr)), what;
        const std::size_t title = who.find(": ");
        if (kind.starts_with("object:text-changed"))
            what = " inserted: " + FirstLine(event->any_data);
        else if (kind.ends_with("name") && title != who.npos)
            what = " named: " + who.substr(title + 2);
        else if (kind.ends_with("description"))
            what = " described";
        static_cast<Listener*>(self)->heard_.push_back(who.substr(0, title) + what);
        g_boxed_free(ATSPI_TYPE_EVENT, event);
    }

    static std::string FirstLine(const GValue& value)
    {
        const std::string text = G_VALUE_HOLDS_STRING(&value) ? g_value_get_string(&value) : "";
        return text.substr(0, text.find('\n'));
    }

    Held<AtspiEventListener> listener_ = Hold(atspi_event_listener_new(Hear, this, nullptr));
    std::vector<std::string> heard_;
};

class Bus : public testing::Test
{
protected:
    void SetUp() override
    {
        const auto launcher = Hold(g_subprocess_launcher_new(G_SUBPROCESS_FLAGS_STDERR_PIPE));
        g_subprocess_launcher_set_cwd(launcher.get(), theFolder.c_str());
        program_.reset(
            g_subprocess_launcher_spawn(launcher.get(), nullptr, theProgram.c_str(), nullptr));
        ASSERT_TRUE(program_) << "cannot start " << theProgram;
        ASSERT_TRUE(ComesTrue([this] { return FindOnDesktop(); })) << "it is not on the bus";
        ASSERT_TRUE(ComesTrue([this] { return The(ATSPI_ROLE_FRAME, "Selvane").IsShown(); }));
    }

    void TearDown() override
    {
        if (!program_) return;
        EXPECT_TRUE(g_subprocess_get_identifier(program_.get())) << "it has ended by itself";
        g_subprocess_send_signal(program_.get(), SIGTERM);
        gchar* complaints = nullptr;
        g_subprocess_communicate_utf8(program_.get(), nullptr, nullptr, nullptr, &complaints,
                                      nullptr);
        EXPECT_EQ(Taken(complaints), "");
    }

    std::vector<Control> All(AtspiRole role, const Words& name = _) const
    {
        std::vector<Control> found, open{*application_};
        while (!open.empty()) {
            const Control next = open.back();
            open.pop_back();
            if (next.Role() == role && name.Matches(next.Name())) found.push_back(next);
            for (const Control& child : std::views::reverse(next.Children())) open.push_back(child);
        }
        return found;
    }

    // Those that share a name differ by their order. Waited for; nothing is there where it fails.
    Control The(AtspiRole role, const Words& name, std::size_t which = 0) const
    {
        std::vector<Control> found;
        EXPECT_TRUE(ComesTrue([&] { return (found = All(role, name)).size() > which; }))
            << "there is no control whose name "
            << testing::DescribeMatcher<const std::string&>(name);
        return which < found.size() ? found[which] : Control(nullptr);
    }
    Control Bar(const std::string& name) const { return The(ATSPI_ROLE_SCROLL_BAR, name); }
    Control Field(const std::string& name, std::size_t which = 0) const
    {
        return The(ATSPI_ROLE_TEXT, name, which);
    }
    Control Button(const std::string& name, std::size_t which = 0) const
    {
        return The(ATSPI_ROLE_PUSH_BUTTON, name, which);
    }
    Control Item(const std::string& name) const { return The(ATSPI_ROLE_MENU_ITEM, name); }
    Control ReadOut(const Words& text) const { return The(ATSPI_ROLE_LABEL, text); }

private:
    bool FindOnDesktop()
    {
        const Control desktop(atspi_get_desktop(0));
        for (const Control& one : desktop.Children())
            if (one.Name() == "selvane") application_ = std::make_unique<Control>(one);
        return application_ != nullptr;
    }

    Held<GSubprocess> program_;
    std::unique_ptr<Control> application_;
};

TEST_F(Bus, EveryControlSaysWhatItIs)
{
    std::vector<std::string> fields, bars;
    for (const Control& field : All(ATSPI_ROLE_TEXT)) {
        if (field.Is(ATSPI_STATE_EDITABLE)) fields.push_back(field.Name());
        EXPECT_NE(field.Text(), "") << field.Name();
    }
    EXPECT_THAT(fields,
                ElementsAre("Periapsis (km)", "Apoapsis (km)", "Periapsis (km)", "Eccentricity",
                            "Semi-Minor Axis (km)", "Semi-Major Axis (km)", "Inclination (Deg.)",
                            "RAAN (Deg.)", "ARGP (Deg.)", "Orbit View (Deg.)", "Zoom",
                            "Change View (deg.)", "GMT Offset"));
    for (const Control& bar : All(ATSPI_ROLE_SCROLL_BAR)) {
        if (!bar.Is(ATSPI_STATE_FOCUSABLE)) continue; // one of the pane
        if (!bar.Name().starts_with("Pan ")) bars.push_back(bar.Name());
        EXPECT_TRUE(bar.HasRange()) << bar.Name();
    }
    EXPECT_EQ(bars, fields);
    EXPECT_EQ(All(ATSPI_ROLE_PUSH_BUTTON, Not("")).size(), 10U);
    for (const char* const chosen : {"Satellite", "Orbital Energy", "Earth", "Reference Frames"})
        EXPECT_TRUE(Item(chosen).Is(ATSPI_STATE_CHECKED)) << chosen;
    EXPECT_FALSE(Item("Mars").Is(ATSPI_STATE_CHECKED));
    EXPECT_FALSE(Bar("GMT Offset").IsShown());
}

TEST_F(Bus, AnOrbitIsSetByBarsByFieldsAndByButtons)
{
    Bar("Periapsis (km)").SetValue(20);
    Bar("Apoapsis (km)").SetValue(30);
    ReadOut("Periapsis = 2000 Km");
    Bar("Apoapsis (km)").Do("Increase");
    ReadOut("Apoapsis = 3100 Km");
    EXPECT_EQ(Field("Apoapsis (km)").Text(), "3100");

    Field("Periapsis (km)").Write("1500"); // heeded by the next step of the flight
    Field("Apoapsis (km)").Write("2500.5");
    ReadOut("Eccentricity = 0.060"); // 500.25 km of 8371.25 km
    EXPECT_EQ(Bar("Apoapsis (km)").Value(), 31);
    Field("Semi-Minor Axis (km)").Write("9000");
    Field("Semi-Major Axis (km)").Write("10000");
    Button("Calculate", 2).Do("Press");
    ReadOut("Eccentricity = 0.436"); // the root of 1 - 0.81

    const Control axis = Field("Semi-Major Axis (km)");
    const std::string purpose = axis.Description();
    axis.Write("far");
    ExpectSoon([&] { return axis.Description(); }, Ne(purpose)); // why it is no orbit
    axis.Write("12000");
    ExpectSoon([&] { return axis.Description(); }, purpose);
}

TEST_F(Bus, TheFlightStopsAndIsStepped)
{
    const Control label = ReadOut(StartsWith("True Anomaly = "));
    const Control image = The(ATSPI_ROLE_IMAGE, "Orbit");
    const auto anomaly = [&] { return label.Name(); };
    const auto picture = [&] { return image.Description(); };
    ExpectSoon(picture, HasSubstr("The satellite is at latitude")); // in flight too
    Button("Pause").Do("Press");
    EXPECT_TRUE(ComesTrue([&] { return Button("Play").IsShown(); }));
    EXPECT_FALSE(Button("Pause").IsShown());
    const std::string stopped = anomaly(), words = picture();
    g_usleep(1000000); // four beats of the slowest flight
    EXPECT_EQ(anomaly(), stopped);

    Button("Step back").Do("Press");
    ExpectSoon(anomaly, Ne(stopped));
    ExpectSoon(picture, Ne(words)); // spoken anew after a step
    const std::string stepped = anomaly();
    Button("Play").Do("Press");
    ExpectSoon(anomaly, Ne(stepped));
    Item("Satellite").Do("Press");
    ExpectSoon(picture, HasSubstr("not shown"));
    EXPECT_FALSE(Item("Satellite").Is(ATSPI_STATE_CHECKED));
}

// The listener hears of each new text with the title of its document, of what the pictures show
// after an action, and of no tick.
TEST_F(Bus, ANewTextIsAnnouncedWithItsTitle)
{
    Listener listener;
    Button("Next").Do("Press");
    EXPECT_TRUE(listener.Hears("Explanation inserted: Reference frames: three axes"));
    EXPECT_TRUE(listener.Hears("Explanation named: Reference frames: three axes"));
    EXPECT_TRUE(listener.Hears("Tutorial picture described"));
    Item("Molniya Orbit").Do("Press");
    EXPECT_TRUE(listener.Hears("Explanation inserted: Molniya orbit"));
    Item("User Guide").Do("Press");
    EXPECT_TRUE(listener.Hears("User guide inserted: Welcome to Selvane"));
    The(ATSPI_ROLE_LINK, "Orbit Shape").Do("Press");
    EXPECT_TRUE(listener.Hears("User guide inserted: Orbit Shape"));
    EXPECT_TRUE(listener.Hears("User guide named: Orbit Shape"));

    const Control image = The(ATSPI_ROLE_IMAGE, "Orbit");
    const std::string before = image.Description();
    listener.Forget();
    ExpectSoon([&] { return image.Description(); }, Ne(before)); // flies on
    EXPECT_FALSE(listener.Hears("Orbit described", 500));

    Item("About Selvane ...").Do("Press");
    EXPECT_TRUE(The(ATSPI_ROLE_DIALOG, "About Selvane").Exists());
    ReadOut("Version " SELVANE_VERSION);
    Button("OK").Do("Press");
    EXPECT_TRUE(ComesTrue([&] { return All(ATSPI_ROLE_DIALOG).empty(); }));
}

} // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    if (argc != 3) return 2;
    theProgram = argv[1];
    theFolder = argv[2];
    atspi_init();
    const auto desktop = Hold(atspi_get_desktop(0));
    atspi_accessible_set_cache_mask(desktop.get(), ATSPI_CACHE_NONE); // no news is waited for
    return RUN_ALL_TESTS();
}
