"""What a screen reader is told: the tree of named, valued elements of one program."""

from desktop import wait_for

try:
    import gi

    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib
except (ImportError, ValueError):
    # Who uses this asks for the tools first.
    Atspi = None


def is_installed():
    return Atspi is not None


# What newer releases of Qt and AT-SPI call a button, and one that has a menu besides.
OLDER_ROLES = {
    "button": "push button",
    "push button menu": "push button",
    "button menu": "push button",
}


class Element:
    def __init__(self, node):
        self.node = node

    def __repr__(self):
        return f"{self.role} \"{self.name}\""

    @property
    def name(self):
        return self.node.get_name() or ""

    @property
    def role(self):
        role = self.node.get_role_name()
        return OLDER_ROLES.get(role, role)

    @property
    def description(self):
        return self.node.get_description() or ""

    @property
    def value(self):
        """The number that a slider or a bar stands at; None for what has none."""
        return Atspi.Value.get_current_value(self.node) if self._has("Value") else None

    @property
    def maximum(self):
        return Atspi.Value.get_maximum_value(self.node) if self._has("Value") else None

    @property
    def text(self):
        """What stands in a field."""
        return Atspi.Text.get_text(self.node, 0, Atspi.Text.get_character_count(self.node))

    def write(self, text):
        """Puts a text into a field in place of the one that is there."""
        Atspi.EditableText.set_text_contents(self.node, text)

    @property
    def states(self):
        return {state.value_nick for state in self.node.get_state_set().get_states()}

    @property
    def rect(self):
        """x, y, width, height in pixels of the screen."""
        extents = Atspi.Component.get_extents(self.node, Atspi.CoordType.SCREEN)
        return extents.x, extents.y, extents.width, extents.height

    def _has(self, interface):
        return interface in self.node.get_interfaces()

    @property
    def center(self):
        x, y, width, height = self.rect
        return x + width / 2, y + height / 2

    def act(self):
        """Does what the element is there for, as a click on it does."""
        Atspi.Action.do_action(self.node, 0)

    def children(self):
        for index in range(self.node.get_child_count()):
            child = self.node.get_child_at_index(index)
            if child is not None:
                yield Element(child)

    def descendants(self):
        for child in self.children():
            yield child
            yield from child.descendants()


class Accessibility:
    """The tree of the program with a process id. What is hidden is not in it."""

    def __init__(self, process_id):
        Atspi.init()
        self.process_id = process_id
        self.application = wait_for("program in the accessibility tree", self._find_application)

    def _find_application(self):
        self.refresh()
        desktop = Atspi.get_desktop(0)
        for index in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(index)
            if child is not None and child.get_process_id() == self.process_id:
                return Element(child)
        return None

    def refresh(self):
        """Forgets what was heard before, so that each question goes to the program."""
        context = GLib.MainContext.default()
        while context.iteration(False):
            pass
        if hasattr(self, "application"):
            self.application.node.clear_cache()

    def elements(self):
        self.refresh()
        try:
            return [each for each in self.application.descendants() if self._is_shown(each)]
        except GLib.Error:
            # Something went away while it was looked at.
            return []

    @staticmethod
    def _is_shown(element):
        return "showing" in element.states

    def find(self, role, name=None):
        """The first element of a role whose name begins so; None where there is none."""
        for element in self.elements():
            try:
                if element.role == role and (name is None or element.name.startswith(name)):
                    return element
            except GLib.Error:
                continue
        return None

    def focused(self):
        """What has the keyboard; None where nothing has."""
        # The current item of a list says so, too, in newer releases of Qt, wherever the keyboard is.
        focused = [
            each
            for each in self.elements()
            if "focused" in each.states and "transient" not in each.states
        ]
        # One that passes the keyboard on to a part of it says that it has it, too.
        return focused[-1] if focused else None

    def wait(self, role, name=None):
        return wait_for(f"{role} \"{name or ''}\"", lambda: self.find(role, name))

    def wait_gone(self, role, name=None):
        wait_for(f"end of the {role} \"{name or ''}\"", lambda: self.find(role, name) is None)
