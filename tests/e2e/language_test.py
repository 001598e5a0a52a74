"""The launcher speaks the chosen language."""

import reading
from case import LauncherTest
from desktop.waiting import wait_until

NO_URL = "Geben Sie eine gültige Vorx-Adresse ein, um die Starttaste zu aktivieren"
READY = "Drücken Sie die Starttaste, um die Fernsteuerung zu starten"


class LanguageTest(LauncherTest):
    def wait_for_german(self, text):
        def is_shown():
            read = reading.read(self.window.picture_of("infoLabel"), "deu")
            return reading.nearest(read, [NO_URL, READY]) == text

        wait_until(is_shown, f"the status line says '{text}'")

    def test_german(self):
        self.start(language="de")
        self.wait_for_german(NO_URL)
        self.enter("vorxLocation", "https://server.example")
        self.wait_for_german(READY)
        self.assertEqual(self.button_title("deu"), "Starten")

    def test_a_locale_that_the_machine_need_not_have(self):
        self.start(language="", locale="pt_BR.UTF-8")
        title = reading.read(self.window.picture_of("launchButton"))
        self.assertEqual(reading.nearest(title, ["Launch", "Iniciar"]), "Iniciar")
