"""The launcher speaks the chosen language."""

from case import LauncherTest
from desktop.launcher import NO_URL, READY


class LanguageTest(LauncherTest):
    def test_german(self):
        self.start(language="de", shown_in="de")
        self.assertEqual(self.launcher.status,
                         "Geben Sie eine gültige Vorx-Adresse ein, um die Starttaste zu aktivieren")
        self.launcher.wait_for_status(NO_URL)
        self.enter_location()
        self.launcher.wait_for_status(READY)
        self.assertEqual(self.launcher.button.name, "Starten")

    def test_a_locale_that_the_machine_need_not_have(self):
        self.start(language="", locale="pt_BR.UTF-8", shown_in="pt-BR")
        self.assertEqual(self.launcher.button.name, "Iniciar")

    def test_a_language_without_texts_is_english(self):
        self.start(language="fi")
        self.assertEqual(self.launcher.button.name, "Launch")
