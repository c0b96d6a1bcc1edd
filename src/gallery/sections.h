/// The sections of the gallery's sheet. Each function fills one shelf.
#pragma once

namespace gallery {

class Shelf;

// What the look is made of.
void colours(Shelf* shelf);
void type(Shelf* shelf);
void lineIcons(Shelf* shelf);
void logosAndGlyphs(Shelf* shelf);

// What the style sheet dresses.
void stockFields(Shelf* shelf);
void stockViews(Shelf* shelf);
void stockPopups(Shelf* shelf);

// The controls of the interface.
void buttons(Shelf* shelf);
void choices(Shelf* shelf);
void marks(Shelf* shelf);
void notes(Shelf* shelf);
void selects(Shelf* shelf);
void furniture(Shelf* shelf);

// The visuals.
void orbs(Shelf* shelf);
void progress(Shelf* shelf);
void maps(Shelf* shelf);
void bars(Shelf* shelf);

} // namespace gallery
