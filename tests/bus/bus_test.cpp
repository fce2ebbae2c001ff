// Drives the program by the accessibility bus alone: what a screen reader says, and what its
// user can do. Each test starts the program anew; run.sh gives it a desktop.
#include <algorithm>
#include <atspi/atspi.h>
#include <csignal>
#include <functional>
#include <gio/gio.h>
#include <gmock/gmock.h>
#include <memory>
#include <string>
#include <vector>

namespace {

using testing::AnyOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;
using Check = testing::Matcher<const std::string&>;

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

void Collect(const Control& from, const std::function<bool(const Control&)>& wanted,
             std::vector<Control>& found)
{
    for (const Control& child : from.Children()) {
        if (wanted(child)) found.push_back(child);
        Collect(child, wanted, found);
    }
}

template <typename Condition> bool ComesTrue(Condition condition)
{
    constexpr int kPatienceMs = 30000, kPauseMs = 50;
    for (int waited = 0; waited < kPatienceMs; waited += kPauseMs) {
        if (condition()) return true;
        g_usleep(kPauseMs * 1000);
    }
    return false;
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

    bool Hears(const std::string& news, int milliseconds = 30000)
    {
        constexpr int kPauseMs = 20;
        for (int waited = 0; waited < milliseconds; waited += kPauseMs) {
            while (g_main_context_iteration(nullptr, FALSE)) {
            }
            if (std::ranges::find(heard_, news) != heard_.end()) return true;
            g_usleep(kPauseMs * 1000);
        }
        return false;
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
        ASSERT_TRUE(ComesTrue([this] { return Find(ATSPI_ROLE_FRAME, "Selvane").IsShown(); }));
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

    std::vector<Control> All(AtspiRole role, const std::string& name = "") const
    {
        std::vector<Control> found;
        Collect(
            *application_,
            [&](const Control& control) {
                return control.Role() == role && (name.empty() || control.Name() == name);
            },
            found);
        return found;
    }

    // Those that share a name differ by their order.
    Control Find(AtspiRole role, const std::string& name, std::size_t which = 0) const
    {
        const std::vector<Control> found = All(role, name);
        return which < found.size() ? found[which] : Control(nullptr);
    }

    Control The(AtspiRole role, const std::string& name, std::size_t which = 0) const
    {
        Control found(nullptr);
        EXPECT_TRUE(ComesTrue([&] { return (found = Find(role, name, which)).Exists(); }))
            << "there is no " << name;
        return found;
    }
    Control Bar(const std::string& name, std::size_t which = 0) const
    {
        return The(ATSPI_ROLE_SCROLL_BAR, name, which);
    }
    Control Field(const std::string& name, std::size_t which = 0) const
    {
        return The(ATSPI_ROLE_TEXT, name, which);
    }
    void Press(AtspiRole role, const std::string& name, std::size_t which = 0) const
    {
        The(role, name, which).Do("Press");
    }
    void PressButton(const std::string& name, std::size_t which = 0) const
    {
        Press(ATSPI_ROLE_PUSH_BUTTON, name, which);
    }

    void ExpectReadOut(const std::string& text) const
    {
        EXPECT_TRUE(ComesTrue([&] { return Find(ATSPI_ROLE_LABEL, text).Exists(); }))
            << "no read-out says: " << text;
    }
    Control Starting(const std::string& start) const
    {
        std::vector<Control> found;
        ComesTrue([&] {
            Collect(
                *application_, [&](const Control& one) { return one.Name().starts_with(start); },
                found);
            return !found.empty();
        });
        EXPECT_FALSE(found.empty()) << "nothing is called " << start;
        return found.empty() ? Control(nullptr) : found[0];
    }
    static void ExpectSoon(const std::function<std::string()>& now, const Check& wanted)
    {
        ComesTrue([&] { return wanted.Matches(now()); });
        EXPECT_THAT(now(), wanted);
    }

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
    std::vector<Control> all;
    for (const Control& frame : All(ATSPI_ROLE_FRAME, "Selvane"))
        Collect(
            frame, [](const Control& one) { return one.Is(ATSPI_STATE_FOCUSABLE); }, all);
    std::vector<std::string> bars, fields;
    for (const Control& control : all) {
        EXPECT_NE(control.Name(), "");
        EXPECT_NE(control.Description(), "") << control.Name();
        EXPECT_THAT(control.Role(),
                    AnyOf(ATSPI_ROLE_SCROLL_BAR, ATSPI_ROLE_TEXT, ATSPI_ROLE_PUSH_BUTTON,
                          ATSPI_ROLE_LINK, ATSPI_ROLE_LABEL))
            << control.Name();
        if (control.Role() == ATSPI_ROLE_SCROLL_BAR) {
            bars.push_back(control.Name());
            EXPECT_TRUE(control.HasRange()) << control.Name();
        }
        if (control.Role() == ATSPI_ROLE_TEXT) {
            fields.push_back(control.Name());
            EXPECT_NE(control.Text(), "") << control.Name();
        }
    }
    EXPECT_THAT(bars, ElementsAre("Periapsis (km)", "Apoapsis (km)", "Periapsis (km)",
                                  "Eccentricity", "Semi-Minor Axis (km)", "Semi-Major Axis (km)",
                                  "Inclination (Deg.)", "RAAN (Deg.)", "ARGP (Deg.)",
                                  "Orbit View (Deg.)", "Zoom", "Pan left and right",
                                  "Pan up and down", "Change View (deg.)", "GMT Offset"));
    for (const char* const pan : {"Pan left and right", "Pan up and down"}) std::erase(bars, pan);
    EXPECT_EQ(fields, bars);
    EXPECT_EQ(all.size(), 15u + 13u + 10u + 1u + 1u); // bars, fields, buttons, link, pane
    EXPECT_EQ(All(ATSPI_ROLE_MENU_ITEM).size(), 21u);
    for (const Control& item : All(ATSPI_ROLE_MENU_ITEM)) EXPECT_NE(item.Name(), "");
    for (const char* const chosen : {"Satellite", "Orbital Energy", "Earth", "Reference Frames"})
        EXPECT_TRUE(The(ATSPI_ROLE_MENU_ITEM, chosen).Is(ATSPI_STATE_CHECKED)) << chosen;
    EXPECT_FALSE(The(ATSPI_ROLE_MENU_ITEM, "Mars").Is(ATSPI_STATE_CHECKED));
    EXPECT_FALSE(Bar("GMT Offset").IsShown());
}

TEST_F(Bus, AnOrbitIsSetByBarsByFieldsAndByButtons)
{
    Bar("Periapsis (km)").SetValue(20);
    Bar("Apoapsis (km)").SetValue(30);
    ExpectReadOut("Periapsis = 2000 Km");
    Bar("Apoapsis (km)").Do("Increase");
    ExpectReadOut("Apoapsis = 3100 Km");
    EXPECT_EQ(Field("Apoapsis (km)").Text(), "3100");

    Field("Periapsis (km)").Write("1500"); // heeded by the next step of the flight
    Field("Apoapsis (km)").Write("2500.5");
    ExpectReadOut("Periapsis = 1500 Km");
    ExpectReadOut("Eccentricity = 0.060"); // 500.25 km of 8371.25 km
    EXPECT_EQ(Bar("Apoapsis (km)").Value(), 31);

    Field("Periapsis (km)", 1).Write("1000");
    Field("Eccentricity").Write("0.2");
    PressButton("Calculate", 1);
    ExpectReadOut("Semi-Major Axis = 9214 Km"); // 7371 km / 0.8
    Field("Semi-Minor Axis (km)").Write("9000");
    Field("Semi-Major Axis (km)").Write("10000");
    PressButton("Calculate", 2);
    ExpectReadOut("Eccentricity = 0.436"); // the root of 1 - 0.81

    const Control axis = Field("Semi-Major Axis (km)");
    const std::string purpose = axis.Description();
    axis.Write("far");
    ExpectSoon([&] { return axis.Description(); }, testing::Ne(purpose)); // why it is no orbit
    axis.Write("12000");
    ExpectSoon([&] { return axis.Description(); }, purpose);
    ExpectReadOut("Semi-Major Axis = 12000 Km");
}

TEST_F(Bus, TheFlightStopsAndIsStepped)
{
    ExpectReadOut("Eclipse = 22 Min (18 %)");
    ExpectSoon([&] { return The(ATSPI_ROLE_IMAGE, "Orbit").Description(); },
               HasSubstr("The satellite is at latitude")); // in flight too
    PressButton("Pause");
    EXPECT_TRUE(ComesTrue([&] { return The(ATSPI_ROLE_PUSH_BUTTON, "Play").IsShown(); }));
    EXPECT_FALSE(The(ATSPI_ROLE_PUSH_BUTTON, "Pause").IsShown());
    const Control label = Starting("True Anomaly = "), image = The(ATSPI_ROLE_IMAGE, "Orbit");
    const auto anomaly = [&] { return label.Name().substr(15); };
    const auto picture = [&] { return image.Description(); };
    const std::string stopped = anomaly(), words = picture();
    EXPECT_THAT(words, HasSubstr("true anomaly " + stopped.substr(0, stopped.find(' '))));
    g_usleep(1000000); // four beats of the slowest flight
    EXPECT_EQ(anomaly(), stopped);

    PressButton("Step back");
    ExpectSoon(anomaly, testing::Ne(stopped));
    EXPECT_LT(std::stod(anomaly()), std::stod(stopped));
    ExpectSoon(picture, testing::Ne(words)); // spoken anew after a step
    Bar("Inclination (Deg.)").SetValue(0);   // a low orbit in the plane of the Sun's light
    for (int turn = 0; turn < 360 && picture().find("in the planet's shadow") == words.npos;
         turn += 30) {
        Bar("RAAN (Deg.)").SetValue(turn);
        const std::string before = anomaly();
        PressButton("Step forward");
        ExpectSoon(anomaly, testing::Ne(before));
    }
    EXPECT_THAT(picture(), HasSubstr("in the planet's shadow"));

    const std::string stepped = anomaly();
    PressButton("Play");
    ExpectSoon(anomaly, testing::Ne(stepped));
    Press(ATSPI_ROLE_MENU_ITEM, "Satellite");
    ExpectSoon(picture, HasSubstr("not shown"));
    EXPECT_FALSE(The(ATSPI_ROLE_MENU_ITEM, "Satellite").Is(ATSPI_STATE_CHECKED));
}

TEST_F(Bus, EachDemonstrationStartsFromTheMenu)
{
    const Control pane = Starting("Explanation"), period = Starting("Period = ");
    const struct
    {
        std::string item, document, minutes;
    } kDemos[] = {{"Earth-Sun Orbit", "The year and the shadow", "125 Min"},
                  {"Sun Synchronous Orbit", "Sun-synchronous orbit", ""},
                  {"Geosynchronous Orbit", "Geosynchronous orbit", "1436 Min"},
                  {"Molniya Orbit", "Molniya orbit", "716 Min"}};
    for (const auto& [name, document, minutes] : kDemos) {
        SCOPED_TRACE(name);
        const Control item = The(ATSPI_ROLE_MENU_ITEM, name);
        item.Do("Press");
        EXPECT_TRUE(ComesTrue([&] { return item.Is(ATSPI_STATE_CHECKED); }));
        ExpectSoon([&] { return pane.Text(); }, StartsWith(document + "\n"));
        ExpectSoon([&] { return period.Name(); }, StartsWith("Period =  " + minutes));
    }
}

// The listener hears of each new text with the title of its document, of what the pictures show
// after an action, and of no tick.
TEST_F(Bus, ANewTextIsAnnouncedWithItsTitle)
{
    Listener listener;
    PressButton("Next");
    EXPECT_TRUE(listener.Hears("Explanation inserted: Reference frames: three axes"));
    EXPECT_TRUE(listener.Hears("Explanation named: Reference frames: three axes"));
    EXPECT_TRUE(listener.Hears("Tutorial picture described"));
    Press(ATSPI_ROLE_MENU_ITEM, "Molniya Orbit");
    EXPECT_TRUE(listener.Hears("Explanation inserted: Molniya orbit"));
    EXPECT_TRUE(listener.Hears("Explanation named: Molniya orbit"));
    Press(ATSPI_ROLE_MENU_ITEM, "User Guide");
    EXPECT_TRUE(listener.Hears("User guide inserted: Welcome to Selvane"));
    Press(ATSPI_ROLE_LINK, "Orbit Shape");
    EXPECT_TRUE(listener.Hears("User guide inserted: Orbit Shape"));
    EXPECT_TRUE(listener.Hears("User guide named: Orbit Shape"));

    const Control image = The(ATSPI_ROLE_IMAGE, "Orbit");
    const std::string before = image.Description();
    listener.Forget();
    ExpectSoon([&] { return image.Description(); }, testing::Ne(before)); // flies on
    EXPECT_FALSE(listener.Hears("Orbit described", 500));
}

TEST_F(Bus, BothTutorialsAreWalkedThereAndBack)
{
    const Control image = The(ATSPI_ROLE_IMAGE, "Tutorial picture");
    const Control pane = Starting("Explanation");
    const auto walk = [&](const std::string& tutorial, const std::vector<std::string>& headings) {
        const std::size_t last = headings.size() - 1;
        for (std::size_t press = 0; press <= 2 * last; ++press) {
            const std::size_t step = press <= last ? press : 2 * last - press;
            if (press > 0) PressButton(press <= last ? "Next" : "Back");
            ExpectSoon([&] { return image.Description(); },
                       StartsWith(tutorial + ", step " + std::to_string(step + 1)));
            ExpectSoon([&] { return pane.Text(); }, StartsWith(headings[step] + "\n"));
        }
    };
    walk("Reference Frames",
         {"Reference frames: the celestial sphere", "Reference frames: three axes",
          "Reference frames: right ascension and declination",
          "Reference frames: longitude and latitude"});
    Press(ATSPI_ROLE_MENU_ITEM, "Time Standards");
    walk("Time Standards",
         {"Time standards: two kinds of day", "Time standards: GMT, local time and the seasons"});
    PressButton("Next");
    EXPECT_TRUE(ComesTrue([&] { return Bar("GMT Offset").IsShown(); }));
}

TEST_F(Bus, TheUserGuideIsReadAndTheAboutBoxCloses)
{
    Press(ATSPI_ROLE_MENU_ITEM, "User Guide");
    const Control pane = Starting("User guide: ");
    const struct
    {
        std::string topic, heading;
    } kTopics[] = {{"Terminolgy", "Terminology"},
                   {"Main Display", "The main display"},
                   {"Orbital Energies", "Orbital Energies"},
                   {"Orbit Shape", "Orbit Shape"},
                   {"Orbit Position", "Orbit Position"},
                   {"Orbit Parameters", "Orbit Parameters"},
                   {"Introduction", "Welcome to Selvane"}};
    for (const auto& [topic, heading] : kTopics) {
        Press(ATSPI_ROLE_LINK, topic);
        ExpectSoon([&] { return pane.Text(); }, StartsWith(heading + "\n"));
        EXPECT_NE(The(ATSPI_ROLE_LINK, topic).Description(), "");
    }
    Press(ATSPI_ROLE_MENU_ITEM, "About Selvane ...");
    EXPECT_TRUE(ComesTrue([&] { return The(ATSPI_ROLE_DIALOG, "About Selvane").IsShown(); }));
    ExpectReadOut("Version " SELVANE_VERSION);
    PressButton("OK");
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
